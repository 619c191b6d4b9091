// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QBoxLayout>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <utility>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"

namespace tarvo {
namespace {

// Both widgets hold a page each from the start, empty until it is shown for the first time: most are never looked at.
template <class Pages>
class TabViewView : public ControlView {
 public:
  TabViewView(TabView& control, Pages& pages, std::vector<PageBuilder> builders, Registry& registry)
      : ControlView(control, pages, registry), control_(control), pages_(pages), builders_(std::move(builders)) {
    for (std::size_t i = 0; i < control.pages().size(); ++i) addPage(*new QWidget(&pages));
    connect(&pages, &Pages::currentChanged, this, [this](int page) {
      if (page == control_.selectedPage()) return;  // the program changes the control first
      control_.userSelect(page);
      show(Control::Change::value);
    });
    TabViewView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change change) override {
    showCommonState();
    if (change == Control::Change::items) showLabels();
    if (control_.selectedPage() < pages_.count()) {
      build(static_cast<std::size_t>(control_.selectedPage()));
      pages_.setCurrentIndex(control_.selectedPage());
    }
  }

 private:
  void addPage(QWidget& page) {
    if constexpr (std::is_same_v<Pages, QTabWidget>) {
      pages_.addTab(&page, QString());
    } else {
      pages_.addWidget(&page);
    }
  }

  void showLabels() {
    if constexpr (std::is_same_v<Pages, QTabWidget>) {
      for (int i = 0; i < pages_.count(); ++i) {
        pages_.setTabText(i, toQString(control_.pages()[static_cast<std::size_t>(i)].label));
      }
    }
  }

  void build(std::size_t page) {
    if (page >= builders_.size() || !builders_[page]) return;
    const PageBuilder builder = std::exchange(builders_[page], nullptr);
    QWidget* place = pages_.widget(static_cast<int>(page));
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(builder(place));
  }

  TabView& control_;
  Pages& pages_;
  std::vector<PageBuilder> builders_;
};

}  // namespace

QStackedWidget* Binder::pages(TabView& control, std::vector<PageBuilder> builders, QWidget* parent) {
  auto* stack = new QStackedWidget(parent);
  new TabViewView<QStackedWidget>(control, *stack, std::move(builders), registry_);
  return stack;
}

QTabWidget* Binder::tabs(TabView& control, std::vector<PageBuilder> builders, QWidget* parent) {
  auto* tabs = new QTabWidget(parent);
  tabs->setUsesScrollButtons(false);  // all are in sight; larger texts make the window wider
  new TabViewView<QTabWidget>(control, *tabs, std::move(builders), registry_);
  tabs->tabBar()->setAccessibleName(toQString(control.label()));
  return tabs;
}

}  // namespace tarvo
