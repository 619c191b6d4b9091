// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/controls/covers.h"
#include "platform/controls/pane.h"
#include "platform/services/geometry.h"

// Windows, sheets and panels as state, and the rules of who may be reached. Frames are in points, y upwards, with
// decorations.
namespace tarvo {

class Window : public Control {
 public:
  Window(Outlets& owner, std::string_view outlet) : Control(owner, outlet, Kind::window) { setWindow(this); }
  const std::string& title() const { return title_; }
  void setTitle(std::string title);
  const Rect& frame() const { return frame_; }
  // didMove is told when the origin changes.
  void setFrame(const Rect& frame);
  // For a toolbar that comes or goes: the window grows or shrinks where it stands, which is no move. Answers whether
  // the origin changed all the same.
  bool setFrameInPlace(const Rect& frame);
  bool isShown() const { return shown_; }
  // For a window that shows one page at a time: the tab view that turns it. The tab view lives as long.
  void setPages(const TabView& pages) { pages_ = &pages; }
  int shownPage() const { return pages_ != nullptr ? pages_->selectedPage() : 0; }

  std::function<void()> didMove;  // the origin changed, by whomever
  std::function<void()> close;    // what the close box and Escape do; empty: there is none
  void userMove(float x, float y);
  void userClose();

 private:
  friend class Windows;
  std::string title_;
  Rect frame_;
  const TabView* pages_ = nullptr;
  bool shown_ = false;
};

// The content heights by which a window's decorations are measured, in points.
struct WindowHeights {
  bool hasToolbar = false, toolbarHidden = false;
  float contentHeight = 0;         // of the content rectangle for the window's frame and style mask
  float contentHeightToggled = 0;  // the same with the title bar's bit of the style mask toggled
  float contentViewHeight = 0;     // of the content view, below the toolbar
};

// What a shell does for windows. Everything that can be decided is decided in Windows below.
class WindowHost {
 public:
  virtual ~WindowHost() = default;
  // As a sheet when Windows::hostOf names its host. Any other window comes to the front and has the keyboard, also when
  // it is shown already.
  virtual void show(Window& window) = 0;
  virtual void hide(Window& window) = 0;
  // The window's frame was set by the program: animate it there when it is shown.
  virtual void applyFrame(Window& window, bool animate) = 0;
  virtual void runModal(Window& window) = 0;  // blocks until stopModal(window); events, timers and posted calls go on
  virtual void stopModal(Window& window) = 0;
  virtual WindowHeights heights(const Window& window) = 0;
  virtual Size paneSize(Pane pane) = 0;
  virtual Rect mainScreen() = 0;
};

class Windows {
 public:
  using EndHandler = std::function<void(int returnCode)>;
  enum class Event { shown, hidden, sheet, sheetEnded, modal, modalEnded, framed };

  // The run loop is the one from which operations that waited for a window begin.
  Windows(WindowHost& host, RunLoop& runLoop) : host_(host), covers_(runLoop) {}
  WindowHost& host() const { return host_; }
  Covers& covers() { return covers_; }

  // Shows the window in front of the others, as the one that has the keyboard; also one that is shown already.
  void orderFront(Window& window);
  void orderOut(Window& window);
  // A new frame with redisplay and animation, as a pane switch sets it. A move is told last.
  void setFrame(Window& window, const Rect& frame);
  // Returns at once. False: the host has a sheet (see Covers::whenFree), and nothing has come up.
  bool beginSheet(Window& sheet, Window& host, EndHandler handler);
  // The sheet is hidden, then the handler runs inside this call; then those who wait for the host have their turn.
  void endSheet(Window& sheet, int returnCode);
  int runModalForWindow(Window& window);  // blocks; runs nest, the innermost ends first
  void stopModal(int code = 0);           // ends the innermost run
  Window* modalWindow() const { return covers_.modalWindow(); }

  // Enabled and not hidden, on the shown page of a shown window that no sheet covers and no modal window shuts out.
  // What is not laid out needs no more than its window. Menu items stand in no window: a modal window shuts them out,
  // and they must be valid.
  bool isReachable(const Control& control) const;
  Window* hostOf(const Window& sheet) const;    // null unless it is up as a sheet
  Window* sheetOver(const Window& host) const;  // null for none, and for a panel

  // Told after it happened; code: the sheet's or the modal run's return code.
  std::function<void(Event, Window&, int code)> observer;

 private:
  void tell(Event event, Window& window, int code = 0);
  WindowHost& host_;
  Covers covers_;
  std::map<const Window*, EndHandler> handlers_;  // of the sheets that are up
  std::vector<int> returnCodes_;                  // of the modal runs, the innermost last
};

}  // namespace tarvo
