// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <unistd.h>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QTimer>

#include <cstdlib>
#include <fstream>
#include <string>

#include "tests/bench/bare_replace.h"

// The least that a Qt program does at its start: floor_window LANGUAGE LIST
// LIST holds lines "SOURCE<tab>TARGET"; each target is replaced by the source's bytes, then a window with one label is
// shown. When its first paint has been flushed, "first-paint" is written to the descriptor TARVO_PAINT_PROBE_FD.
namespace {

void replaceAll(const char* list) {
  std::ifstream lines(list);
  std::string line;
  while (std::getline(lines, line)) {
    const auto tab = line.find('\t');
    tarvo::bareReplace(line.substr(tab + 1), tarvo::readWholeFile(line.substr(0, tab)));
  }
}

class FirstPaint : public QObject {
 public:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      receiver->removeEventFilter(this);
      QTimer::singleShot(0, [] { tell(); });  // paint and flush are one event; this is the next
    }
    return false;
  }

 private:
  static void tell() {
    const char* descriptor = std::getenv("TARVO_PAINT_PROBE_FD");
    if (descriptor == nullptr || write(std::atoi(descriptor), "first-paint\n", 12) != 12) QApplication::exit(1);
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  replaceAll(argv[2]);
  QLabel window(std::string(argv[1]) == "ja" ? QStringLiteral("翻訳スタイル") : QStringLiteral("Translation styles"));
  window.resize(640, 480);
  FirstPaint probe;
  window.installEventFilter(&probe);
  window.show();
  return QApplication::exec();
}
