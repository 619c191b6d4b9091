// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QBoxLayout;
class QDialog;
class QPushButton;
class QString;

namespace tarvo {

// Puts the details of an alert below the rows that are there, hidden until the button is pressed; they take the
// keyboard then, so that assistive tools read them. The button has still to find its place; the dialog owns both.
QPushButton* addDetails(QDialog& dialog, QBoxLayout& rows, const QString& details, const QString& title);

}  // namespace tarvo
