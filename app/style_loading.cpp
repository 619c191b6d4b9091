// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/style_loading.h"

#include "dict/medical_dictionaries.h"
#include "platform/services/file_service.h"
#include "platform/services/product_paths.h"
#include "style/option_table.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

Result<> makeFolder(FileService& files, const DiskPath& folder) {
  if (files.isThere(folder)) return {};
  return files.makeFolder(folder);
}

}  // namespace

LoadedStyles loadStyles(StyleStore& store, MedicalDictionaries& medical, FileService& files,
                        const ProductPaths& paths) {
  LoadedStyles loaded;
  if (const Result<> read = store.readUserStyles(); !read) {
    loaded.isFileAbsent = isAbsence(read.error());
    Result<> seeded = makeFolder(files, paths.tarvoPathPreferencesFolderURL());
    if (seeded) seeded = store.readSeedStyles();
    if (!seeded) {
      loaded.failure = seeded.error();
      return loaded;
    }
    store.setPending();
    if (store.unread()) store.beginStandIn();
  } else {
    loaded.filledIn = missingOptions(store.root());
  }
  loaded.inserted = medical.insertInstalled();
  if (!loaded.inserted.empty()) store.setPending();
  store.fillInMissingOptions();
  return loaded;
}

}  // namespace tarvo
