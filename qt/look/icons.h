// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QString>

#include "qt/look/palette.h"

// Drawings (SVG) as icons.
// Duty: crisp at every size and scale; in the dark scheme the two inks of the drawings become lighter: the neutral one
// (#3A4250, to #D5DAE3) and the blue one (#2F6FED, to #5B93FF); all other colours stay. Not: finding files by image
// name (see platform/services/bundle.h).
// The file is read and parsed when the icon is painted for the first time; copies of an icon share that work.
namespace tarvo {

// drawing: the text of an SVG.
QIcon iconOf(QByteArray drawing, Scheme scheme);

// svgPath: the path of the drawing. A missing file gives a null icon, an unreadable one an icon that paints nothing.
QIcon icon(const QString& svgPath, Scheme scheme);

}  // namespace tarvo
