// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The pane of translation styles: style menu and tool chooser above the two directions of translation.
// Duty: place the controls; each direction, and in it each page, is built when it is first shown. Not: what they do.
QWidget* buildStylePane(Interface& interface, Binder& binder, QWidget* parent);

}  // namespace tarvo
