// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/panes/style_pane.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/look/metrics.h"
#include "qt/panes/direction_page.h"
#include "qt/panes/tool_chooser_view.h"

namespace tarvo {
namespace {

constexpr int stylePopupWidth = 320;
constexpr int toolIconSide = 64;

// The icon of the chosen tool beside what is chosen for it.
QLayout* buildHead(Interface& interface, Binder& binder, QWidget* pane) {
  auto* head = new QGridLayout;
  head->setHorizontalSpacing(metrics::labelGap);
  head->setVerticalSpacing(metrics::rowGap);
  head->setColumnStretch(2, 1);
  const auto label = [&](const QString& text, int row, QWidget* field) {
    auto* shown = new QLabel(text, pane);
    shown->setBuddy(field);
    head->addWidget(shown, row, 1, Qt::AlignRight | Qt::AlignVCenter);
  };
  QWidget* icon = binder.image(interface.style.toolIcon, toolIconSide, pane);
  head->addWidget(icon, 0, 0, 2, 1, Qt::AlignCenter);
  head->setColumnMinimumWidth(0, toolIconSide + metrics::rowGap);
  QComboBox* styles = binder.popup(interface.style.stylePopup, pane);
  styles->setMinimumWidth(stylePopupWidth);
  auto* chosen = new QHBoxLayout;
  chosen->setSpacing(metrics::labelGap);
  chosen->addWidget(styles);
  chosen->addWidget(binder.button(interface.naming.StyleNameEditButton, pane));
  chosen->addStretch();
  label(toQString(interface.style.stylePopup.label()), 0, styles);
  head->addLayout(chosen, 0, 2);
  QWidget* tools = buildToolChooser(interface, binder, pane);
  label(binder.localized("Label.toolChooser"), 1, tools);
  head->addWidget(tools, 1, 2, Qt::AlignVCenter);
  return head;
}

}  // namespace

QWidget* buildStylePane(Interface& interface, Binder& binder, QWidget* parent) {
  auto* pane = new QWidget(parent);
  auto* column = new QVBoxLayout(pane);
  // Pages may scroll to the lower edge.
  column->setContentsMargins(metrics::paneMargin, metrics::paneMargin, metrics::paneMargin, 0);
  column->setSpacing(metrics::sectionGap - metrics::rowGap);
  column->addLayout(buildHead(interface, binder, pane));
  std::vector<PageBuilder> pages;
  for (const Direction direction : {Direction::englishToJapanese, Direction::japaneseToEnglish}) {
    pages.emplace_back([&interface, &binder, direction](QWidget* page) {
      return buildDirectionPage(interface, binder, direction, page);
    });
  }
  QTabWidget* directions = binder.tabs(interface.lists.directionTab, std::move(pages), pane);
  directions->tabBar()->setAccessibleName(directions->accessibleName());
  column->addWidget(directions, 1);
  binder.view(interface.manager.styleManagerView, *pane);
  return pane;
}

}  // namespace tarvo
