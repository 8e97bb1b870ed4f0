// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/update/TrustedAuthority.h"

#include "tests/update/Certificates.h"

#include <QSslCertificate>
#include <QSslConfiguration>

TrustedAuthority::TrustedAuthority() {
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificate(QSslCertificate(Certificates::Authority));
    QSslConfiguration::setDefaultConfiguration(trusting);
}

TrustedAuthority::~TrustedAuthority() {
    QSslConfiguration stranger = QSslConfiguration::defaultConfiguration();
    stranger.setCaCertificates(QSslConfiguration::systemCaCertificates());
    QSslConfiguration::setDefaultConfiguration(stranger);
}
