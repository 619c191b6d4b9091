// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/binder.h"

#include <QTextDocument>

#include "platform/services/bundle.h"
#include "platform/services/texts.h"
#include "qt/look/icons.h"

namespace tarvo {

Binder::Binder(const Texts& texts, const Bundle& bundle, Scheme scheme)
    : texts_(texts), bundle_(bundle), scheme_(scheme) {}

QString Binder::localized(std::string_view key) const { return toQString(texts_.localized(key)); }

QIcon Binder::icon(std::string_view image) {
  const auto known = icons_.find(image);
  if (known != icons_.end()) return known->second;
  const std::optional<DiskPath> path = image.empty() ? std::nullopt : bundle_.image(image);
  return icons_[std::string(image)] = path ? tarvo::icon(toQString(path->text()), scheme_) : QIcon();
}

QString plainToolTip(std::string_view text) {
  const QString plain = toQString(text);
  return Qt::mightBeRichText(plain) ? QStringLiteral("<p>%1</p>").arg(plain.toHtmlEscaped()) : plain;
}

}  // namespace tarvo
