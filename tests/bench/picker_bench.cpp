// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "qt/look/tarvo_style.h"
#include "qt/shell.h"
#include "qt/window/main_window.h"

// How fast the picker is: picker_bench ROOT HOME WORD COUNT
// Opens the picker, types the word into its filter and takes it back letter by letter, COUNT times. Prints medians in
// milliseconds: of an opening, until its list is painted; of the very first one, with the building of the window; of a
// keystroke, until the rows that it leaves are painted; and the number of rows: "OPENING FIRST KEYSTROKE ROWS".
namespace {

using namespace tarvo;

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times.at(times.size() / 2);
}

class PickerBench {
 public:
  PickerBench(Shell& shell, std::string word, int count) : shell_(shell), word_(std::move(word)), count_(count) {}

  // From the loop, and again at each turn until the picker is up.
  void work() {
    auto* picker = shell_.registry().find<QWidget>("picker.myWindow");
    if (picker == nullptr || !picker->isVisible()) return QTimer::singleShot(0, qApp, [this] { work(); });
    paint("picker.techDicTable");
    openings_.push_back(static_cast<double>(since_.nsecsElapsed()) / 1e6);
    for (const char letter : word_) press(0, QString(QLatin1Char(letter)));
    for (std::size_t i = 0; i < word_.size(); ++i) press(Qt::Key_Backspace, {});
    rows_ = shown<QTableView>("picker.techDicTable").model()->rowCount();
    shown<QPushButton>("picker.cancelButton").click();
  }

  void run() {
    for (int i = 0; i < count_; ++i) {
      QTimer::singleShot(0, qApp, [this] { work(); });
      since_.start();
      shown<QPushButton>("style.ejLoadDicButton").click();
    }
    std::cout << median(openings_) << ' ' << openings_.at(0) << ' ' << median(keystrokes_) << ' ' << rows_ << '\n';
  }

 private:
  template <class Widget>
  Widget& shown(const char* name) {
    auto* widget = shell_.registry().find<Widget>(name);
    if (widget == nullptr) throw std::runtime_error(std::string(name) + " is not shown");
    return *widget;
  }

  void paint(const char* name) {
    QApplication::processEvents();
    shown<QTableView>(name).viewport()->repaint();
  }

  void press(int key, const QString& text) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    since_.start();
    QApplication::sendEvent(&shown<QLineEdit>("picker.filterField"), &event);
    paint("picker.techDicTable");
    keystrokes_.push_back(static_cast<double>(since_.nsecsElapsed()) / 1e6);
  }

  Shell& shell_;
  std::string word_;
  int count_;
  QElapsedTimer since_;
  std::vector<double> openings_, keystrokes_;
  int rows_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "usage: picker_bench ROOT HOME WORD COUNT\n";
    return 2;
  }
  Product product(ProductOptions{.root = argv[1], .home = argv[2], .language = "en"});
  QApplication application(argc, argv);
  applyLook(Scheme::light, product.language());
  Shell shell(product, application, [] { return std::vector<tarvo::ProductPath>(); });
  if (!shell.start()) return 1;
  QTimer::singleShot(0, &application, [&] {
    PickerBench(shell, argv[3], std::stoi(argv[4])).run();
    shell.program().quit();
  });
  shell.run();
  return 0;
}
