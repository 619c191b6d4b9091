// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/controls.h"

#include <algorithm>
#include <utility>

namespace tarvo {

Control::Control(Outlets& owner, std::string_view outlet, Kind kind)
    : name_(owner.owner() + "." + std::string(outlet)), kind_(kind) {
  owner.controls_.push_back(this);
}

Control::~Control() = default;

void Control::changed(Change change) {
  if (view) view(change);
}

void Control::send() {
  if (action) action(*this);
}

void Control::setEnabled(bool enabled) {
  if (std::exchange(enabled_, enabled) != enabled) changed(Change::look);
}

void Control::setHidden(bool hidden) {
  if (std::exchange(hidden_, hidden) != hidden) changed(Change::look);
}

void Control::setLabel(std::string label) {
  label_ = std::move(label);
  changed(Change::look);
}

void Control::setToolTip(std::string toolTip) {
  toolTip_ = std::move(toolTip);
  changed(Change::look);
}

void Control::setPage(TabView* tab, int page) {
  tab_ = tab;
  page_ = page;
}

Window* Control::window() const { return tab_ != nullptr ? tab_->window() : window_; }

bool Control::isOnShownPage() const {
  return tab_ == nullptr || (tab_->selectedPage() == page_ && !tab_->isHidden() && tab_->isOnShownPage());
}

void Button::setImage(std::string image) {
  image_ = std::move(image);
  changed(Change::look);
}

void Button::userPress() {
  if (isEnabled()) send();
}

void CheckBox::setState(bool state) {
  if (std::exchange(state_, state) != state) changed(Change::value);
}

void CheckBox::userCheck(bool state) {
  if (!isEnabled()) return;
  setState(state);
  send();
}

void TextField::setStringValue(std::string text) {
  text_ = std::move(text);
  changed(Change::value);
  if (didChange) didChange();
}

void TextField::userType(std::string text) { setStringValue(std::move(text)); }

void ImageView::setImage(std::string image) {
  image_ = std::move(image);
  changed(Change::value);
}

void View::setFrame(const Rect& frame) {
  frame_ = frame;
  changed(Change::look);
}

void PopUpButton::setItems(std::vector<Item> items) {
  items_ = std::move(items);
  selected_ = items_.empty() ? -1 : 0;
  changed(Change::items);
}

void PopUpButton::setItemTitle(int index, std::string title) {
  if (index < 0 || index >= static_cast<int>(items_.size())) return;
  items_[static_cast<std::size_t>(index)].title = std::move(title);
  changed(Change::items);
}

int PopUpButton::selectedTag() const { return selected_ < 0 ? 0 : items_[static_cast<std::size_t>(selected_)].tag; }

std::string PopUpButton::titleOfSelectedItem() const {
  return selected_ < 0 ? std::string() : items_[static_cast<std::size_t>(selected_)].title;
}

void PopUpButton::selectItemAtIndex(int index) {
  selected_ = index >= 0 && index < static_cast<int>(items_.size()) ? index : -1;
  changed(Change::value);
}

bool PopUpButton::userChoose(int index) {
  if (!isEnabled() || index < 0 || index >= static_cast<int>(items_.size())) return false;
  if (items_[static_cast<std::size_t>(index)].separator) return false;
  selectItemAtIndex(index);
  send();
  return true;
}

void SegmentedControl::setSegments(std::vector<Segment> segments) {
  segments_ = std::move(segments);
  selected_ = -1;
  changed(Change::items);
}

void SegmentedControl::setSelected(int segment, bool on) {
  if (segment < 0 || segment >= segmentCount()) return;
  if (on) {
    selected_ = segment;
  } else if (selected_ == segment) {
    selected_ = -1;
  }
  changed(Change::value);
}

bool SegmentedControl::userClick(int segment) {
  if (!isEnabled() || segment < 0 || segment >= segmentCount()) return false;
  if (!segments_[static_cast<std::size_t>(segment)].enabled) return false;
  setSelected(segment, true);
  send();
  return true;
}

void TabView::setPages(std::vector<Page> pages) {
  pages_ = std::move(pages);
  selected_ = 0;
  changed(Change::items);
}

void TabView::selectPage(int page) {
  if (page < 0 || page >= static_cast<int>(pages_.size()) || page == selected_) return;
  selected_ = page;
  changed(Change::value);
  if (didSelect) didSelect(page);
}

void TabView::selectPageWithIdentifier(std::string_view identifier) {
  const auto page = std::find_if(pages_.begin(), pages_.end(),
                                 [&](const Page& candidate) { return candidate.identifier == identifier; });
  if (page != pages_.end()) selectPage(static_cast<int>(page - pages_.begin()));
}

void TabView::userSelect(int page) {
  if (isEnabled()) selectPage(page);
}

void MenuItem::setTitle(std::string title) {
  title_ = std::move(title);
  changed(Change::look);
}

bool MenuItem::userChoose() {
  if (!isValid()) return false;
  send();
  return true;
}

}  // namespace tarvo
