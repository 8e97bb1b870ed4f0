// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Settings.h"

#include "core/mMain.h"
#include "platform/RuntimeError.h"

namespace {

QString KeyPath() {
    return QString::fromUtf16(SettingsKey);
}

} // namespace

QString ReadSetting(const QString& key) {
    return mMain::Registry().GetString(RootKey::CurrentUser, KeyPath(), key);
}

void WriteSetting(const QString& key, const QString& value) {
    RegistryRuntime& registry = mMain::Registry();
    Ignoring([&] { registry.SaveString(RootKey::CurrentUser, KeyPath(), key, value); });
}
