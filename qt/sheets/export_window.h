// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
struct ExportOutlets;

// The export window: a menu of all styles, a button that asks where to export, one that closes. Escape closes too.
QDialog* buildExportWindow(ExportOutlets& outlets, Binder& binder, QWidget* parent);

}  // namespace tarvo
