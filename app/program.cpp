// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include <cmath>
#include <utility>

#include "app/window_geometry.h"
#include "platform/services/failure_text.h"

namespace tarvo {

namespace {

// The window of the interface: just large enough for the style pane, in the middle of the screen and a little above it.
Rect firstFrame(WindowHost& host, const Window& window) {
  const WindowHeights heights = host.heights(window);
  const Size pane = host.paneSize(Pane::style);
  const Rect screen = host.mainScreen();
  const float height = pane.height + titlebarHeight(heights) + toolbarHeight(heights);
  return {screen.x + std::floor((screen.width - pane.width) / 2),
          screen.y + std::floor((screen.height - height) * 2 / 3), pane.width, height};
}

}  // namespace

Program::Program(const Services& given)
    : windows_(given.windowHost, given.runLoop),
      panels_(given.panels, windows_.covers(),
              [this](const std::string& text) { rooms_.notices.tell({.text = text}); }),
      services_{static_cast<const Surroundings&>(given), panels_},
      defaults_(services_.files, userDefaultsPath(services_.locations)),
      rooms_({interface_, services_, defaults_, notifications_, windows_,
              [this](Tool tool) { styles_.selectTableViewAction(tool); }, [this] { styles_.showStylesAgain(); }}),
      manager_(interface_, rooms_, services_, defaults_, notifications_, windows_, [this] { userQuits(); }),
      styles_(interface_, rooms_, services_, defaults_, notifications_, [this] { userQuits(); }),
      opening_({interface_, styles_, manager_, panels_, rooms_.connection, windows_, services_.texts}),
      requests_(services_.runLoop, styles_, opening_) {
  rooms_.connection.didEndAsking = [this] {
    if (const std::optional<DiskPath> file = opening_.takeKept()) requests_.openStyleFile(*file);
  };
}

Program::~Program() = default;

void Program::tellUnreadSettings() {
  const std::optional<Failure>& unread = defaults_.unread();
  if (!unread) return;
  const std::string text = services_.texts.localized("Refusal.UnreadableSettings");
  panels_.tell(unread->path + ": " + filledIn(text, failureParts(*unread, services_.texts).cause));
}

void Program::tellUnwrittenSettings(const Failure& why) {
  const std::string text = filledIn(services_.texts.localized("Notice.settings"), failureText(why, services_.texts));
  rooms_.notices.tellAside({.text = text});
  if (terminated_) panels_.tell(text);  // nobody sees the line any more
}

bool Program::construct() {
  tellUnreadSettings();
  defaults_.didFail = [this](const Failure& why) { tellUnwrittenSettings(why); };
  interface_.connect({rooms_, styles_, manager_}, services_.texts);
  Window& window = interface_.manager.myWindow;
  window.setFrameInPlace(firstFrame(windows_.host(), window));
  if (!manager_.init()) return false;
  styles_.init();
  return true;
}

bool Program::load() {
  if (!styles_.awakeFromNib()) return false;
  manager_.awakeFromNib();
  managerAwake_ = true;
  return true;
}

void Program::launch() {
  windows_.orderFront(interface_.manager.myWindow);
  if (didShow) didShow();
  if (terminated_) return;
  manager_.applicationDidFinishLaunching();
  requests_.launchDidEnd();
}

bool Program::start() {
  if (!construct() || !load()) return false;
  launch();
  return true;
}

void Program::userQuits() {
  if (!hasUser || !managerAwake_ || terminated_) return quit();
  rooms_.quitting.ask([this] { quit(); });
}

void Program::quit() {
  if (std::exchange(terminated_, true)) return;
  requests_.close();
  windows_.covers().close();
  if (managerAwake_) manager_.applicationWillTerminate();
  if (didTerminate) didTerminate();
}

}  // namespace tarvo
