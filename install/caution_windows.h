// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class FileService;
class Locations;
class Opener;
class Window;
class Windows;
struct AddinOutlets;

// What the buttons beside the tables bring up: cautions, and the programs that run and check scripts.
// The mail pane's caution depends on the system version: up to 10.5 `alertWindow`, later `alertWindowSL`.
class CautionWindows {
 public:
  CautionWindows(AddinOutlets& outlets, Windows& windows, const FileService& files, const Locations& locations,
                 const Opener& opener)
      : outlets_(outlets), windows_(windows), files_(files), locations_(locations), opener_(opener) {}
  void mailButtonAction();
  void closeCautionWindow();
  void selectPowerPoint();
  void closePowerPoint();
  // By application name; where it lies is the desktop's business.
  void launchAppleScriptEditor();
  void launchAppleScriptUtil();

 private:
  Window& mailCaution() const;
  AddinOutlets& outlets_;
  Windows& windows_;
  const FileService& files_;
  const Locations& locations_;
  const Opener& opener_;
};

}  // namespace tarvo
