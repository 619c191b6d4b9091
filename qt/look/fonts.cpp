// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>

namespace tarvo {
namespace {

QStringList candidates(bool japanese) {
  if (japanese) return {"Noto Sans CJK JP", "Noto Sans JP", "IPAexGothic", "IPAPGothic", "VL PGothic"};
  return {"Noto Sans", "Open Sans", "DejaVu Sans"};
}

// The first installed family; for Japanese any family that the system knows to hold it comes before giving up.
QString installed(bool japanese) {
  for (const QString& family : candidates(japanese))
    if (QFontDatabase::hasFamily(family)) return family;
  if (!japanese) return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  const QStringList able = QFontDatabase::families(QFontDatabase::Japanese);
  return able.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::GeneralFont).family() : able.front();
}

double scale() {
  bool isNumber = false;
  const double percent = qgetenv("TARVO_FONT_SCALE").toDouble(&isNumber);
  return isNumber && percent >= 50 && percent <= 300 ? percent / 100 : 1;
}

}  // namespace

QFont applicationFont(const std::string& language) {
  const bool japanese = language.starts_with("ja");
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setFamilies({installed(japanese), installed(!japanese)});
  font.setPointSizeF(std::max(10.0, font.pointSizeF()) * scale());
  return font;
}

QFont headingFont(const QFont& base) {
  QFont font = base;
  font.setWeight(QFont::Bold);
  return font;
}

}  // namespace tarvo
