// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QAction>
#include <QMenu>

#include "qt/bind/binder.h"

namespace tarvo {
namespace {

class MenuItemView : public QObject {
 public:
  MenuItemView(MenuItem& control, QAction& action, Registry& registry)
      : QObject(&action), control_(control), action_(action), registry_(registry) {
    action.setObjectName(toQString(control.name()));
    registry.enter(control, action);
    connect(&action, &QAction::triggered, this, [this] { control_.userChoose(); });
    control.view = [this](Control::Change) { show(); };
    show();
  }

  ~MenuItemView() override {
    control_.view = nullptr;
    registry_.leave(control_, action_);
  }

  void validate() { action_.setEnabled(control_.isValid()); }
  // A disabled action would swallow its shortcut for as long as no menu is opened again.
  void forget() { action_.setEnabled(true); }

 private:
  void show() {
    action_.setText(toQString(control_.title()));
    action_.setVisible(!control_.isHidden());
  }

  MenuItem& control_;
  QAction& action_;
  Registry& registry_;
};

template <class Call>
void forEachItem(const QMenu& menu, Call call) {
  for (QAction* action : menu.actions()) {
    for (QObject* child : action->children()) {
      if (auto* view = dynamic_cast<MenuItemView*>(child)) (view->*call)();
    }
  }
}

}  // namespace

void Binder::menuItem(MenuItem& control, QAction& action) { new MenuItemView(control, action, registry_); }

void Binder::menu(QMenu& menu) {
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] { forEachItem(menu, &MenuItemView::validate); });
  QObject::connect(&menu, &QMenu::aboutToHide, &menu, [&menu] { forEachItem(menu, &MenuItemView::forget); });
}

}  // namespace tarvo
