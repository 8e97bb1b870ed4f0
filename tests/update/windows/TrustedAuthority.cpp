// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/update/TrustedAuthority.h"

#include "tests/update/Certificates.h"

#include <QSslCertificate>

// clang-format off
#include <windows.h>
#include <wincrypt.h>

// clang-format on

namespace {

/// The user's own store of those that are trusted.
HCERTSTORE Open() {
    return CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_CURRENT_USER, L"ROOT");
}

} // namespace

TrustedAuthority::TrustedAuthority() {
    const QByteArray authority = QSslCertificate(Certificates::Authority).toDer();
    const HCERTSTORE trusted = Open();
    CertAddEncodedCertificateToStore(trusted, X509_ASN_ENCODING, reinterpret_cast<const BYTE*>(authority.constData()),
                                     static_cast<DWORD>(authority.size()), CERT_STORE_ADD_REPLACE_EXISTING, nullptr);
    CertCloseStore(trusted, 0);
}

TrustedAuthority::~TrustedAuthority() {
    const HCERTSTORE trusted = Open();
    if (const CERT_CONTEXT* const found = CertFindCertificateInStore(
            trusted, X509_ASN_ENCODING, 0, CERT_FIND_SUBJECT_STR_W, L"Brindock test", nullptr))
        CertDeleteCertificateFromStore(found);
    CertCloseStore(trusted, 0);
}
