// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>
#include <functional>

// Pictures of widgets that are not on any screen, and counting in them.
namespace tarvo::test {

inline QImage picture(QWidget& widget, QSize size) {
  widget.resize(size);
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  widget.render(&image);
  return image;
}

inline int pixels(const QImage& image, const std::function<bool(const QColor&)>& wanted) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += wanted(image.pixelColor(x, y)) ? 1 : 0;
  return count;
}

inline bool isRed(const QColor& color) { return color.red() - color.green() > 60 && color.red() - color.blue() > 60; }

}  // namespace tarvo::test
