// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The suite's own per-user file.
#pragma once

#include <QString>

/// The native path of the registry file: BRINDOCK_REGISTRY, else below the user's configuration.
QString OwnRegistryFile();
