// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/outlets.h"
#include "platform/services/geometry.h"

// Controls are state, not widgets. A control holds what it shows; a shell attaches a view when it has built one.
// Duty: hold the state; send the action after a gesture of the user. Not: drawing, layout, deciding.
// Programs call the plain setters: they tell the view and never send. Only user…() sends, and only a shell's binder or
// a hand (console, tests) may call user…(); script/lint fails on any other caller. Texts are UTF-8.
namespace tarvo {

class TabView;
class Window;

class Control {
 public:
  enum class Kind { popup, segments, tabs, table, button, check, field, text, image, view, window, menu, toolbar };
  enum class Change { look, items, value, reload, scroll, filter };
  using Action = std::function<void(Control& sender)>;

  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Kind kind() const { return kind_; }
  const std::string& name() const { return name_; }  // "owner.outlet"
  int tag() const { return tag_; }
  void setTag(int tag) { tag_ = tag; }
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool isHidden() const { return hidden_; }
  void setHidden(bool hidden);
  // False: it has no place in its window, and a script works it through its state alone.
  bool isLaidOut() const { return laidOut_; }
  void setLaidOut(bool laidOut) { laidOut_ = laidOut; }
  const std::string& label() const { return label_; }  // what people call it; the accessible name
  void setLabel(std::string label);
  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string toolTip);

  // Where it stands: in a window, or on a page of a tab view that stands there.
  void setWindow(Window* window) { window_ = window; }
  void setPage(TabView* tab, int page);
  Window* window() const;
  bool isOnShownPage() const;

  Action action;                     // set once, by the interface table
  std::function<void(Change)> view;  // at most one; empty until a shell has built it

 protected:
  Control(Outlets& owner, std::string_view outlet, Kind kind);
  void changed(Change change);
  void send();

 private:
  std::string name_, label_, toolTip_;
  Kind kind_;
  int tag_ = 0;
  bool enabled_ = true, hidden_ = false, laidOut_ = true;
  Window* window_ = nullptr;
  TabView* tab_ = nullptr;
  int page_ = 0;
};

// A push button or a toolbar item.
class Button : public Control {
 public:
  Button(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::button) {}
  const std::string& image() const { return image_; }
  void setImage(std::string image);
  void userPress();

 private:
  std::string image_;
};

class CheckBox : public Control {
 public:
  CheckBox(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::check) {}
  bool state() const { return state_; }
  void setState(bool state);
  void userCheck(bool state);

 private:
  bool state_ = false;
};

// A text that the user may type into, or one that is only shown.
class TextField : public Control {
 public:
  TextField(Outlets& owner, std::string_view outlet, Kind kind = Kind::field) : Control(owner, outlet, kind) {}
  const std::string& stringValue() const { return text_; }
  void setStringValue(std::string text);
  void userType(std::string text);  // no action: the buttons beside it act
  std::function<void()> didChange;  // after every change, by the user or the program

 private:
  std::string text_;
};

class ImageView : public Control {
 public:
  ImageView(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::image) {}
  const std::string& image() const { return image_; }  // a name for Bundle::image; "" for none
  void setImage(std::string image);

 private:
  std::string image_;
};

// A pane or a scrolled area.
class View : public Control {
 public:
  View(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::view) {}
  void scrollToTop() { changed(Change::scroll); }
  const Rect& frame() const { return frame_; }  // in its surroundings; only where somebody sets it
  void setFrame(const Rect& frame);

 private:
  Rect frame_;
};

class PopUpButton : public Control {
 public:
  struct Item {
    std::string title;
    int tag = 0;
    bool separator = false;  // drawn as a line; the title is kept
    std::string image = {};  // a name for Bundle::image, drawn before the title; "" for none
    friend bool operator==(const Item&, const Item&) = default;
  };
  PopUpButton(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::popup) {}
  // The whole list at once; then the first item is selected, or none of an empty list.
  void setItems(std::vector<Item> items);
  const std::vector<Item>& items() const { return items_; }
  void setItemTitle(int index, std::string title);
  int indexOfSelectedItem() const { return selected_; }  // -1: none
  int selectedTag() const;                               // 0 when none is selected
  std::string titleOfSelectedItem() const;               // "" when none is selected
  void selectItemAtIndex(int index);                     // an index that it does not have selects none
  // Sends, also for the item that is selected already. False, and nothing happens, for a divider or a missing index.
  bool userChoose(int index);

 private:
  std::vector<Item> items_;
  int selected_ = -1;
};

class SegmentedControl : public Control {
 public:
  struct Segment {
    std::string image, toolTip;
    bool enabled = true;
  };
  SegmentedControl(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::segments) {}
  void setSegments(std::vector<Segment> segments);
  const std::vector<Segment>& segments() const { return segments_; }
  int segmentCount() const { return static_cast<int>(segments_.size()); }
  int selectedSegment() const { return selected_; }  // -1: none
  void setSelected(int segment, bool on);
  // Selects it and sends, also when it is selected already. False for a disabled or missing segment.
  bool userClick(int segment);

 private:
  std::vector<Segment> segments_;
  int selected_ = -1;
};

class TabView : public Control {
 public:
  struct Page {
    std::string identifier, label;
  };
  TabView(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::tabs) {}
  void setPages(std::vector<Page> pages);
  const std::vector<Page>& pages() const { return pages_; }
  int selectedPage() const { return selected_; }
  void selectPage(int page);
  void selectPageWithIdentifier(std::string_view identifier);
  void userSelect(int page);
  std::function<void(int page)> didSelect;  // after every change, by the user or the program

 private:
  std::vector<Page> pages_;
  int selected_ = 0;
};

class MenuItem : public Control {
 public:
  MenuItem(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::menu) {}
  const std::string& title() const { return title_; }
  void setTitle(std::string title);
  std::function<bool(const MenuItem&)> validate;  // asked when a menu opens and when the item is chosen (shortcuts)
  bool isValid() const { return isEnabled() && (!validate || validate(*this)); }
  bool userChoose();  // false, and nothing happens, when it is not valid

 private:
  std::string title_;
};

}  // namespace tarvo
