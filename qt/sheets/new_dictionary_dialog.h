// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

class Binder;
class Button;
class TextField;
class Window;

// The controls of a sheet that asks for a new dictionary's name. The style pane and the picker have one each.
struct NewDictionaryControls {
  Window& window;
  TextField &prompt, &name, &folderTitle, &folderName;
  Button &ok, &cancel;
};

// Prompt, name field, the folder where the file will lie, two buttons. Return is OK, Escape is Cancel.
QDialog* buildNewDictionaryDialog(const NewDictionaryControls& controls, Binder& binder, QWidget* parent);

}  // namespace tarvo
