// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a crash left: reports in the folder "crashes" of the user's own, shown at the next start to who wants to see
/// them. Nothing is sent anywhere.
#pragma once

namespace CrashOffer {

/// From now on a crash of this process leaves a report that tells the version and the system.
void Begin();

/// Where there is a report that was not offered yet, asks whether to show the last one. Each is offered once; the last
/// few stay in the folder.
void Offer();

} // namespace CrashOffer
