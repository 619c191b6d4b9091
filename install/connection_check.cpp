// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/connection_check.h"

#include "platform/services/engine.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"

namespace tarvo {

namespace {
constexpr const char* connectServer = "ConnectServer";
constexpr double secondsUntilNextStep = 2.0;
constexpr int defaultButton = 1;
constexpr int confirmed = 1000;
}  // namespace

ConnectionCheck::~ConnectionCheck() { with_.runLoop.cancel(timer_); }

void ConnectionCheck::checkConnection() {
  if (!isWindowFree()) return later(&ConnectionCheck::checkConnection);
  if (!with_.engine.checkConnectionWithCurl()) {
    asking_ = true;
    const Texts& texts = with_.texts;
    with_.panels.beginAlertSheet(with_.myWindow,
                                 {texts.localized("Cant connect internet Header"),
                                  texts.localized("Cant connect internet Contents"),
                                  {texts.localized("ContinueS"), texts.localized("CancelS")}},
                                 [this](int button) { connectSheetDidEnd(button + 1); });
    return;
  }
  // A service that is just going away answers once and no more: nothing is said about it.
  if (!with_.engine.checkConnectionWithCurl()) return;
  const PropertyList* stored = with_.defaults.find(connectServer);
  if (stored != nullptr && stored->booleanValue()) return with_.notifications.post(sendPlistNoti);
  confirmView();
}

void ConnectionCheck::connectSheetDidEnd(int returnCode) {
  returnCode == defaultButton ? later(&ConnectionCheck::confirmView) : endAsking();
}

bool ConnectionCheck::isWindowFree() const { return with_.windows.covers().isFree(with_.myWindow); }

void ConnectionCheck::later(void (ConnectionCheck::*step)()) {
  timer_ = with_.runLoop.after(secondsUntilNextStep, [this, step] { (this->*step)(); });
}

void ConnectionCheck::confirmView() {
  asking_ = true;
  if (!isWindowFree()) return later(&ConnectionCheck::confirmView);
  with_.windows.beginSheet(with_.outlets.sslPanel, with_.myWindow,
                           [this](int returnCode) { sslSheetDidEnd(returnCode); });
}

void ConnectionCheck::actionPanel() {
  with_.defaults.set(connectServer, with_.outlets.sslCheck.state());
  with_.defaults.synchronize();
  with_.windows.endSheet(with_.outlets.sslPanel, confirmed);
  with_.notifications.post(sendPlistNoti);
}

void ConnectionCheck::sslSheetDidEnd(int) {
  with_.windows.orderOut(with_.outlets.sslPanel);
  endAsking();
}

void ConnectionCheck::endAsking() {
  asking_ = false;
  if (didEndAsking) didEndAsking();
}

}  // namespace tarvo
