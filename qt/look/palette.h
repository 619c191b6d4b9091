// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

// The colours of the window.
// Duty: one neutral palette and one blue accent, in light and in dark. Every drawing takes its colours from the roles
// below and mixes them, nothing else in the shell names a colour. Not: fonts, sizes.
// Contrast (WCAG 2.1 ratios): text at least 7:1 on each surface that carries it, PlaceholderText (which is also the
// secondary text) at least 4.5:1, disabled text and the lines that show where a control is (Dark) at least 3:1.
// Roles: Window = the pane; Base = lists and fields; Button = plates of buttons; Midlight = the track of a
// segmented control; Mid = decorative lines; Dark = marks and borders that must be seen; Highlight = the accent.
namespace tarvo {

enum class Scheme { light, dark };

QPalette makePalette(Scheme scheme);

// TARVO_SCHEME=light|dark; without it dark if the platform's own palette is dark, else light. Ask after the application
// object exists and before it gets this palette.
Scheme schemeFromEnvironment();

}  // namespace tarvo
