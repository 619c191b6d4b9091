// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "dict/medical_dictionaries.h"
#include "tests/dict/style_pane_world.h"

namespace tarvo::test {

inline constexpr const char *G = "General.TRet", *CA = "Clinic A.TRet", *CB = "Clinic B.TRet", *X = "Other.TRet";

struct MedicalWorld : StylePaneWorld {
  MedicalWorld() {
    setText("IgakuSougou", "General");
    setText("Shinryouka", "Clinic");
    setText("Corwell", "Corwell");
    setText("Tekado", "Tekado");
    setText("NameETekado", "TekE.TRet");
    setText("NameJTekado", "TekJ");
    for (const char* key : {"TechECorwell6", "TechJCorwell6", "TechETekado", "TechJTekado"}) {
      setText(key, folder / ("data/" + std::string(key)));
    }
    defaults.observer = [this](std::string_view key, const PropertyList* value) {
      log += key.empty() ? "flush " : std::string(key) + (value != nullptr && value->booleanValue() ? "=true " : "? ");
    };
  }
  void install(const char* key) const { folder.write("data/" + std::string(key), ""); }
  void openLists(const Array& english, const Array& japanese) {
    Dictionary ej, je, style;
    ej.set(keyNameTD, english);
    je.set(keyNameTD, japanese);
    style.set(keyNameEJ, ej);
    style.set(keyNameJE, je);
    open({style});
    writes = 0;
  }
  Array list(std::string_view direction, int index = 0) const {
    const auto style = store.getStyleAtIndex(index);
    const Dictionary* half = style ? style->dictionary(direction) : nullptr;
    const Array* names = half != nullptr ? half->array(keyNameTD) : nullptr;
    return names != nullptr ? *names : Array{"(absent)"};
  }

  // As a start does it: whether a list may have changed.
  bool insertInstalled() {
    const std::vector<std::string_view> flags = medical.insertInstalled();
    medical.remember(flags);
    return !flags.empty();
  }

  MedicalDictionaries medical{{files, locations, paths, texts, defaults, store}};
  std::string log;
};

}  // namespace tarvo::test
