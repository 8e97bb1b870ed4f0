// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The suite, as its own main() starts it, until its first window is painted.
#include "app/Start.h"
#include "bench/FirstPaint.h"

int main(int argc, char** argv) {
    FirstPaint firstPaint;
    return RunSuite(argc, argv, &firstPaint);
}
