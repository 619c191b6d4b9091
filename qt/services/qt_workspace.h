// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/services/workspace.h"

namespace tarvo {

class FileService;
class ProductPaths;

// The desktop's own ways to open files and addresses. Applications are looked for by name in the product's application
// folders; those that the product counts as running stand behind those that run.
class QtWorkspace : public Workspace {
 public:
  struct Services {
    const FileService& files;
    const ProductPaths& paths;
  };
  // running: the applications that run now.
  QtWorkspace(Services services, std::function<std::vector<ProductPath>()> running);
  Result<> openFile(const DiskPath& path) override;
  Result<> openAddress(const std::string& address) override;
  Result<> launchApplication(const std::string& name) override;
  std::vector<ProductPath> launchedApplications() override;

 private:
  Services services_;
  std::function<std::vector<ProductPath>()> running_;
};

}  // namespace tarvo
