// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/toolbar.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvo {

namespace {

constexpr std::array<std::string_view, 3> modeNames{"iconAndLabel", "iconOnly", "labelOnly"};

}  // namespace

void Toolbar::setAllowedItems(std::vector<Item> items) {
  allowed_ = std::move(items);
  setOrder({});
}

Button* Toolbar::item(std::string_view identifier) const {
  for (const Item& candidate : allowed_) {
    if (candidate.identifier == identifier) return candidate.button;
  }
  return nullptr;
}

View* Toolbar::viewOf(std::string_view identifier) const {
  for (const Item& candidate : allowed_) {
    if (candidate.identifier == identifier) return candidate.view;
  }
  return nullptr;
}

void Toolbar::setOrder(std::vector<std::string> identifiers) {
  order_.clear();
  for (std::string& identifier : identifiers) {
    const bool isNew = std::find(order_.begin(), order_.end(), identifier) == order_.end();
    if (isNew && item(identifier) != nullptr) order_.push_back(std::move(identifier));
  }
  if (order_.empty()) {
    for (const Item& candidate : allowed_) order_.push_back(candidate.identifier);
  }
  for (const Item& candidate : allowed_) {
    const bool listed = std::find(order_.begin(), order_.end(), candidate.identifier) != order_.end();
    candidate.button->setHidden(!shown_ || !listed);
  }
  changed(Change::items);
}

void Toolbar::setSelectedItemIdentifier(std::string identifier) {
  selected_ = std::move(identifier);
  changed(Change::value);
}

Dictionary Toolbar::configuration() const {
  Array order;
  for (const std::string& identifier : order_) order.emplace_back(identifier);
  Dictionary configuration;
  configuration.set("Order", std::move(order));
  configuration.set("Shown", shown_);
  configuration.set("DisplayMode", modeNames[static_cast<std::size_t>(mode_)]);
  return configuration;
}

void Toolbar::applyConfiguration(const Dictionary& configuration) {
  if (const PropertyList* shown = configuration.find("Shown")) shown_ = shown->booleanValue();
  if (const std::string* mode = configuration.string("DisplayMode")) {
    const auto* known = std::find(modeNames.begin(), modeNames.end(), *mode);
    if (known != modeNames.end()) mode_ = static_cast<DisplayMode>(known - modeNames.begin());
  }
  std::vector<std::string> order;
  if (const Array* stored = configuration.array("Order")) {
    for (const PropertyList& identifier : *stored) {
      if (identifier.string() != nullptr) order.push_back(*identifier.string());
    }
  }
  setOrder(std::move(order));
}

void Toolbar::setShown(bool shown) {
  if (std::exchange(shown_, shown) == shown) return;
  setOrder(order_);
  if (didToggle) didToggle(shown);
}

void Toolbar::userShow(bool shown) {
  setShown(shown);
  if (didCustomize) didCustomize();
}

void Toolbar::userOrder(std::vector<std::string> identifiers) {
  setOrder(std::move(identifiers));
  if (didCustomize) didCustomize();
}

void Toolbar::userDisplay(DisplayMode mode) {
  mode_ = mode;
  changed(Change::items);
  if (didCustomize) didCustomize();
}

}  // namespace tarvo
