// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/t_manager_controller.h"

#include <cstdlib>
#include <utility>

#include "app/interface.h"
#include "app/menu_rules.h"
#include "app/panes.h"
#include "app/rooms.h"
#include "app/window_geometry.h"
#include "platform/services/failure_text.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "platform/services/panels.h"
#include "platform/services/product_paths.h"
#include "platform/services/style_module.h"
#include "platform/services/system_version.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"

namespace tarvo {

namespace {

constexpr const char* myWindowFrame = "MyWindowFrame";
constexpr const char* toolbarTag = "ToolbarTag";
constexpr const char* toolbarConfiguration = "Toolbar tarvoToolbar";
constexpr int oldestVersionWithScreenCheck = 104;

}  // namespace

TManagerController::TManagerController(Interface& interface, Rooms& rooms, const Services& services,
                                       UserDefaults& defaults, NotificationCenter& notifications, Windows& windows,
                                       std::function<void()> terminate)
    : interface_(interface),
      rooms_(rooms),
      services_(services),
      defaults_(defaults),
      notifications_(notifications),
      windows_(windows),
      terminate_(std::move(terminate)),
      caution_(interface.manager, defaults, windows) {}

TManagerController::~TManagerController() {
  notifications_.removeObserver(this);
  if (modulesStarted_) services_.paths.tarvoPathTerminate();
}

bool TManagerController::init() {
  if (!startModules()) return false;
  if (const Result<> made = rooms_.mailScripts.createMailScriptFolder(); !made) {
    rooms_.notices.tell({.text = failureText(made.error(), services_.texts)});  // Mail is not listed then
  }
  if (!rooms_.addins.searchOfficeApplication()) {
    rooms_.alerts.beepAndAlert("ApplicationCautionHeader", "ApplicationCautionMessage");
    terminate_();
    return false;
  }
  rooms_.addinTable.reloadTables();
  notifications_.addObserver(this, changeToolbarNotification, [this](const Notification&) { changeToolbar(); });
  notifications_.addObserver(this, changeOfficeToolbarNotification,
                             [this](const Notification&) { changeOfficeToolbar(); });
  return true;
}

bool TManagerController::startModules() {
  ProductPaths& paths = services_.paths;
  const bool runAlready = paths.isInitialized();
  paths.tarvoPathInitialize();
  modulesStarted_ = true;
  if (runAlready) return true;
  if (const int code = paths.tarvoPathLoadDictAndHelper(0); code != 0) {
    tellModuleFailure(code);
    return false;
  }
  StyleModule& styles = services_.styleModule;
  styles.tarvoStyleInitialize();
  styles.tarvoStyleSetTStyleUrl(paths.tarvoPathTranslationStylePathURL());
  styles.tarvoStyleSetTechDictUrl(paths.tarvoPathTechnicalDicEngFolderURL(), paths.tarvoPathTechnicalDicJpnFolderURL());
  styles.tarvoStyleSetUserDictUrl(paths.tarvoPathUserDicFolderURL());
  return true;
}

void TManagerController::tellModuleFailure(int code) {
  const Texts& texts = services_.texts;
  services_.panels.runAlertPanel({"",
                                  filledIn(texts.localized("Failed Instlation Contents"), std::to_string(code)),
                                  {texts.localized("AlertClose")}});
  terminate_();
}

void TManagerController::awakeFromNib() {
  buildToolbar();
  restoreFrame();
  restorePane();
  rooms_.officeTool.restoreTool();
  rooms_.officeTool.writeOffieTool();
}

void TManagerController::buildToolbar() {
  ManagerOutlets& outlets = interface_.manager;
  Toolbar& toolbar = outlets.toolbar;
  toolbar.setAllowedItems({{rowOf(Pane::style).identifier, &outlets.StyleManager},
                           {rowOf(Pane::office).identifier, &outlets.OA},
                           {rowOf(Pane::mail).identifier, &outlets.MT}});
  const PropertyList* stored = defaults_.find(toolbarConfiguration);
  if (stored != nullptr && stored->dictionary() != nullptr) toolbar.applyConfiguration(*stored->dictionary());
  toolbar.didToggle = [this](bool) { adaptToToolbar(); };
  toolbar.didCustomize = [this] { keepToolbar(); };
}

void TManagerController::keepToolbar() {
  defaults_.set(toolbarConfiguration, interface_.manager.toolbar.configuration());
  defaults_.synchronize();
}

void TManagerController::adaptToToolbar() {
  Window& window = interface_.manager.myWindow;
  const WindowHeights heights = windows_.host().heights(window);
  const Size pane = windows_.host().paneSize(shownPane());
  window.setFrameInPlace(paneFrame(window.frame(), pane, titlebarHeight(heights), toolbarHeight(heights)));
  windows_.host().applyFrame(window, false);
}

void TManagerController::toggleToolbar() {
  interface_.manager.toolbar.setShown(!interface_.manager.toolbar.isShown());
  keepToolbar();
}

void TManagerController::restoreFrame() {
  const std::string* stored = defaults_.string(myWindowFrame);
  const std::optional<Rect> frame = stored != nullptr ? frameFromSavedString(*stored) : std::nullopt;
  if (!frame) return;
  interface_.manager.myWindow.setFrame(*frame);
  windows_.host().applyFrame(interface_.manager.myWindow, false);
}

void TManagerController::restorePane() {
  const std::string* stored = defaults_.string(toolbarTag);
  Pane pane = Pane::style;
  for (const PaneRow& row : paneRows) {
    if (stored != nullptr && *stored == row.identifier) pane = row.pane;
  }
  interface_.manager.toolbar.setSelectedItemIdentifier(rowOf(pane).identifier);
  showPane(pane);
}

void TManagerController::selectToolbarAction(Control& item) {
  const std::optional<Pane> pane = paneForTag(item.tag());
  if (!pane) return;
  interface_.manager.toolbar.setSelectedItemIdentifier(rowOf(*pane).identifier);
  showPane(*pane);
}

void TManagerController::selectToolbarActionforMenu(int tag) {
  if (const std::optional<Pane> pane = paneForTag(tag)) bringForward(*pane);
}

void TManagerController::bringForward(Pane pane) {
  showPane(pane);
  interface_.manager.toolbar.setSelectedItemIdentifier(rowOf(pane).identifier);
}

Pane TManagerController::shownPane() const {
  return paneForTag(interface_.manager.myTabView.selectedPage()).value_or(Pane::style);
}

void TManagerController::showPane(Pane pane) {
  Window& window = interface_.manager.myWindow;
  const PaneRow& row = rowOf(pane);
  interface_.manager.myTabView.selectPage(tagOf(pane));
  window.setTitle(services_.texts.localized(row.titleKey));
  const WindowHeights heights = windows_.host().heights(window);
  const Size size = windows_.host().paneSize(pane);
  if (View* view = interface_.manager.toolbar.viewOf(row.identifier)) view->setFrame({0, 0, size.width, size.height});
  windows_.setFrame(window, paneFrame(window.frame(), size, titlebarHeight(heights), toolbarHeight(heights)));
  defaults_.set(toolbarTag, row.identifier);
  defaults_.synchronize();
}

void TManagerController::windowDidMove() {
  const Rect& frame = interface_.manager.myWindow.frame();
  defaults_.set(myWindowFrame, savedFrameString(frame, windows_.host().mainScreen()));
  defaults_.synchronize();
}

void TManagerController::applicationDidFinishLaunching() {
  if (getOSVersion() >= oldestVersionWithScreenCheck) caution_.checkScreenSize();
  rooms_.oldScripts.OldscriptUninstall();
  interface_.addins.mailTableView.reloadData();
  rooms_.connection.checkConnection();
}

void TManagerController::applicationWillTerminate() {
  rooms_.officeTool.writeOffieTool();
  rooms_.addins.storeRows();
}

int TManagerController::getOSVersion() const { return systemVersion(services_.files, services_.locations); }

bool TManagerController::allowsMenuItem(std::string_view title) const {
  return mainWindowAllows(title, rooms_.flags, services_.texts) &&
         stylePaneAllows(title, interface_.manager.toolbar.selectedItemIdentifier(), services_.texts);
}

void TManagerController::showAbout() {
  const Texts& texts = services_.texts;
  services_.panels.runAlertPanel({texts.localized("ApplicationName") + " " TARVO_VERSION,
                                  texts.localized("AboutText"),
                                  {texts.localized("AlertClose")}});
}

}  // namespace tarvo
