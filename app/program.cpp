// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/program.h"

#include <cmath>
#include <utility>

#include "app/picked_applications.h"
#include "app/window_geometry.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

constexpr const char* identifier = "com.wordhaven.TarvoManager";

DictController::Services dictionaryServices(const Services& services) {
  return {services.files, services.texts, services.bundle, services.paths};
}

DictionaryNameChecks::Services nameServices(const Services& services) {
  return {services.files, services.texts, services.paths, services.panels};
}

Services withPanels(const Services& services, Panels& panels) {
  return {.locations = services.locations,
          .files = services.files,
          .bundle = services.bundle,
          .texts = services.texts,
          .paths = services.paths,
          .engine = services.engine,
          .styleModule = services.styleModule,
          .gTarvoCommonModule = services.gTarvoCommonModule,
          .runLoop = services.runLoop,
          .panels = panels,
          .windowHost = services.windowHost,
          .workspace = services.workspace,
          .scripts = services.scripts};
}

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

std::string userDefaultsPath(const Locations& locations) {
  return locations.inHome(std::string("Library/Preferences/") + identifier + ".plist");
}

std::string lockPath(const Locations& locations) {
  return locations.inHome(std::string("Library/Preferences/") + identifier + ".lock");
}

std::string toolListPath(const Locations& locations) {
  return locations.inHome("Library/Preferences/Wordhaven/TarvoManager.txt");
}

Program::Program(const Services& given)
    : windows_(given.windowHost, given.runLoop),
      panels_(given.panels, windows_.covers()),
      services_(withPanels(given, panels_)),  // nobody past this line knows the panels of the shell
      defaults_(services_.files, userDefaultsPath(services_.locations)),
      store_(services_.files, services_.engine, defaults_, services_.locations.inHome(std::string(gStylePath)),
             std::string(gAppSupportStylePlist)),
      options_(store_, interface_.options, services_.texts),
      alerts_(panels_, services_.texts),
      guard_(services_.workspace, services_.paths),
      lists_(store_, interface_.style.stylePopup, interface_.lists, services_.texts, dictionaryServices(services_),
             guard_),
      dictionaryTable_(lists_, services_.texts),
      medical_(services_.files, services_.texts, defaults_, store_),
      userLists_(dictionaryServices(services_)),
      userListRows_(interface_.userLists, userLists_, dictionaryServices(services_)),
      picker_({interface_.picker, windows_, services_.workspace, alerts_, guard_, notifications_},
              nameServices(services_)),
      loading_(lists_, picker_, request_, alerts_, guard_, services_.texts),
      newDictionary_({interface_.newDictionary, interface_.userLists, interface_.manager.myWindow, request_, lists_,
                      userLists_, flags_, alerts_, guard_, notifications_, windows_},
                     nameServices(services_)),
      naming_({interface_.naming, interface_.style.stylePopup, interface_.manager.myWindow, store_, flags_, alerts_,
               windows_},
              services_.texts.localized(nomalStyle)),
      exchange_({interface_.exchange, interface_.style.stylePopup, interface_.manager.myWindow, store_, services_.files,
                 services_.locations, panels_, alerts_, windows_, services_.texts}),
      display_(store_, options_, lists_, services_.texts),
      chooser_(interface_.style, interface_.options, flags_,
               [this](Tool tool) { styles_.selectTableViewAction(tool); }),
      toolList_(services_.files, defaults_, services_.gTarvoCommonModule, interface_.tools,
                toolListPath(services_.locations)),
      mailScripts_(services_.files, services_.bundle, services_.locations.home()),
      macros_(services_.files, services_.bundle),
      addins_({services_.files, services_.bundle, defaults_}, services_.locations.home(), mailScripts_,
              interface_.addins),
      addinTable_({panels_, services_.texts}, addins_, macros_, mailScripts_, interface_.addins,
                  interface_.manager.myTabView),
      officeSearch_({services_.files, services_.locations, panels_, services_.texts, services_.scripts,
                     services_.gTarvoCommonModule},
                    addins_, mailScripts_),
      oldScripts_({services_.files, panels_, services_.texts}, addins_, mailScripts_, services_.locations.home()),
      cautions_(interface_.addins, windows_, services_.files, services_.workspace),
      connection_({interface_.connection, interface_.manager.myWindow, services_.engine, defaults_, notifications_,
                   panels_, services_.runLoop, windows_, services_.texts}),
      help_(services_.bundle, services_.paths, services_.texts, services_.workspace),
      rooms_{.store = store_,
             .options = options_,
             .lists = lists_,
             .dictionaryTable = dictionaryTable_,
             .medical = medical_,
             .userLists = userLists_,
             .userListRows = userListRows_,
             .picker = picker_,
             .loading = loading_,
             .newDictionary = newDictionary_,
             .guard = guard_,
             .alerts = alerts_,
             .naming = naming_,
             .exchange = exchange_,
             .display = display_,
             .chooser = chooser_,
             .toolList = toolList_,
             .mailScripts = mailScripts_,
             .addins = addins_,
             .addinTable = addinTable_,
             .officeSearch = officeSearch_,
             .oldScripts = oldScripts_,
             .cautions = cautions_,
             .connection = connection_,
             .help = help_,
             .flags = flags_},
      manager_(interface_, rooms_, services_, defaults_, notifications_, windows_, [this] { quit(); }),
      styles_(interface_, rooms_, services_, defaults_, notifications_, [this] { quit(); }),
      opening_({interface_, styles_, manager_, panels_, connection_, windows_, services_.texts}),
      requests_(services_.runLoop, services_.locations, styles_, opening_) {
  rooms_.manager = &manager_;
  rooms_.styles = &styles_;
  connection_.didEndAsking = [this] {
    if (const std::optional<std::string> file = opening_.takeKept()) requests_.openStyleFile(*file);
  };
}

Program::~Program() = default;

bool Program::construct() {
  interface_.connect(rooms_, services_.texts);
  Window& window = interface_.manager.myWindow;
  window.setFrameInPlace(firstFrame(windows_.host(), window));
  leavePickedApplications(defaults_, services_.locations);
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

void Program::quit() {
  if (std::exchange(terminated_, true)) return;
  requests_.close();
  windows_.covers().close();
  if (managerAwake_) manager_.applicationWillTerminate();
  if (didTerminate) didTerminate();
}

}  // namespace tarvo
