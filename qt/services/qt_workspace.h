// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/workspace.h"

namespace tarvo {

class Locations;

// The desktop's own ways to open files, addresses and programs. An application is known by the name of its bundle in
// one of the folders for applications; one that is not there is not started.
class QtWorkspace : public Workspace {
 public:
  // running: what launchedApplications answers.
  QtWorkspace(const Locations& locations, std::function<std::vector<std::string>()> running);
  void openFile(const std::string& path) override;
  void openAddress(const std::string& address) override;
  void launchApplication(const std::string& name) override;
  std::vector<std::string> launchedApplications() override { return running_(); }

 private:
  const Locations& locations_;
  std::function<std::vector<std::string>()> running_;
};

}  // namespace tarvo
