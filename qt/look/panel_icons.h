// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStyle>

#include "qt/look/palette.h"

// The small pictures of the toolkit's file panels and fields.
// Duty: draw them with the strokes and inks of the program's own icons. Not: pictures of the product (see icons.h).
namespace tarvo {

// A null icon for a picture that neither a panel nor a field shows.
QIcon panelIcon(QStyle::StandardPixmap picture, Scheme scheme);

}  // namespace tarvo
