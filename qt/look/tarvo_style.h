// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>
#include <QStyleOptionMenuItem>
#include <string>

#include "qt/look/palette.h"

// The look of the window.
// Duty: metrics and hints, and the dispatch of each element to its drawing (draw.h); everything else is the Fusion
// style's. Not: colours (palette.h), fonts (fonts.h).
namespace tarvo {

class TarvoStyle : public QProxyStyle {
  Q_OBJECT
 public:
  explicit TarvoStyle(Scheme scheme);

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget = nullptr) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget = nullptr) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget = nullptr) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget = nullptr) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget = nullptr) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;
  int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                QStyleHintReturn* returned = nullptr) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option = nullptr,
                     const QWidget* widget = nullptr) const override;
  QPalette standardPalette() const override;
  // Texts of labels may come from files: none is taken for markup.
  void polish(QWidget* widget) override;
  using QProxyStyle::polish;

 private:
  // A row of a list or menu: the base draws it as one that is not chosen, over the tint of a chosen one.
  template <class Row>
  void drawRow(ControlElement element, Row row, QPainter* painter, const QWidget* widget) const;

  // An item of a menu or an open pop-up.
  void drawItem(QStyleOptionMenuItem item, QPainter* painter, const QWidget* widget) const;

  Scheme scheme_;
};

// Gives the application style, palette and font; to be called once, when the application object exists and before the
// first widget. The style belongs to the application.
void applyLook(Scheme scheme, const std::string& language);

}  // namespace tarvo
