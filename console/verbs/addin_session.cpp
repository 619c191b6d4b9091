// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/addin_session.h"

#include "app/product.h"
#include "app/user_files.h"
#include "install/office_folder_search.h"
#include "platform/services/common_module.h"
#include "platform/services/file_service.h"

namespace tarvo {

AddinSession::AddinSession(Product& product)
    : product_(product),
      defaults_(product.files(), userDefaultsPath(product.locations())),
      mailScripts_(product.files(), product.bundle(), product.locations()),
      macros_(product.files(), product.bundle(), product.locations()),
      lists_({product.files(), product.bundle(), defaults_, product.locations()}, mailScripts_) {}

Result<> AddinSession::read() { return lists_.searchOfficeApplication(AddinLists::MailFolder::asAStartMakesIt); }

Result<> AddinSession::setInstalled(AddinPlace place, bool on) {
  return tarvo::setInstalled(lists_, place, on, macros_, mailScripts_);
}

Result<std::vector<Failure>> AddinSession::searchFolder(const DiskPath& folder) {
  const TarvoCommonModule module(product_.paths());
  OfficeFolderSearch search({product_.files(), product_.locations(), product_.scripts(), module}, lists_, mailScripts_);
  const Result<OfficeFolderSearch::Found> found = search.searchFolder(folder);
  if (!found) return found.error();
  return found->unread;
}

Result<> AddinSession::store() {
  lists_.storeRows();
  if (const std::optional<Failure>& unwritten = defaults_.unwritten()) return *unwritten;
  return {};
}

}  // namespace tarvo
