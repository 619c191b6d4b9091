// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/controls/controls.h"
#include "platform/controls/windows.h"
#include "platform/plist/property_list.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// Styles as files of their own ("*.whstyle"): a property list whose root is one record of the style file.
// Duty: check such a file and put it in a style's place; ask where to export and write. Not: showing what came in.
namespace tarvo {

class FileService;
class Locations;
class OwnFiles;
class PaneAlerts;
class Panels;
class StyleStore;
struct MessageParts;
class Texts;

struct ExportOutlets : Outlets {
  Window exportWindow{*this, "exportWindow"};
  PopUpButton exportStylePopup{*this, "exportStylePopup"};
  Button exportButton{*this, "exportButton"}, exportCloseButton{*this, "exportCloseButton"};
  MenuItem importMenu{*this, "importMenu"}, exportMenu{*this, "exportMenu"},
      exportWindowMenu{*this, "exportWindowMenu"};
  ExportOutlets() : Outlets("style") {}
};

class StyleExchange {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    ExportOutlets& outlets;
    const PopUpButton& stylePopup;
    Window& myWindow;  // the main window
    StyleStore& store;
    FileService& files;
    const Locations& locations;
    Panels& panels;
    PaneAlerts& alerts;
    Windows& windows;
    const Texts& texts;
    const OwnFiles& ownFiles;
  };
  explicit StyleExchange(const Collaborators& with) : with_(with) {}

  // Asks for one style file; nothing when the user cancels.
  std::optional<DiskPath> chooseImportFile();
  // The style that the file holds. Nothing after an alert: it is no style, or its options are out of range; what is
  // wrong with it, and where, stands in the alert's details and is told besides.
  std::optional<Dictionary> readForImport(const DiskPath& path);
  // Puts the record in the place of the style at the index, under the title; one write. False after an alert: no style
  // stands there, and nothing has changed.
  bool install(Dictionary record, int index, const std::string& title);

  // Asks where to export the chosen style, once the window is free.
  void exportStyle();
  // Runs the export window, whose menu lists every record, dividers too, as an ordinary item.
  void exportStyle2();
  // Asks where to export. The window's choice only proposes the name of the file; what is written is always the style
  // chosen in the pane.
  void exportButtonAction();
  void closeExportWindow();

 private:
  void askWhereToExport(int index, Window& host);
  void didEndSaveSheet(int returnCode, const DiskPath& path);
  void tellThatNothingWasExported(const std::optional<Failure>& why = std::nullopt);
  void tellThatNothingWasImported(const std::string& path, const MessageParts& why);
  Collaborators with_;
};

}  // namespace tarvo
