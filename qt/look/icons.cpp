// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/look/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <functional>
#include <memory>
#include <utility>

namespace tarvo {
namespace {

struct Ink {
  const char *light, *dark;
};
constexpr Ink inks[] = {{"#3A4250", "#D5DAE3"}, {"#2F6FED", "#5B93FF"}};

QByteArray recoloured(QByteArray drawing, Scheme scheme) {
  if (scheme == Scheme::light) return drawing;
  for (const auto& [light, dark] : inks) drawing.replace(light, dark).replace(QByteArray(light).toLower(), dark);
  return drawing;
}

// One drawing, parsed at its first use.
class Drawing {
 public:
  using Source = std::function<QByteArray()>;
  Drawing(Source source, Scheme scheme) : source_(std::move(source)), scheme_(scheme) {}
  // A painter that only moves gets the picture kept from last time.
  void render(QPainter& painter, const QRect& rect) {
    if (painter.worldTransform().type() > QTransform::TxTranslate) return draw(painter, rect);
    const qreal scale = painter.device()->devicePixelRatio();
    if (kept_.size() != rect.size() * scale || kept_.devicePixelRatio() != scale) keep(rect.size(), scale);
    painter.drawPixmap(rect.topLeft(), kept_);
  }

 private:
  void keep(const QSize& size, qreal scale) {
    kept_ = QPixmap(size * scale);
    kept_.setDevicePixelRatio(scale);
    kept_.fill(Qt::transparent);
    QPainter painter(&kept_);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, QRectF(QPointF(), size));
  }
  void draw(QPainter& painter, const QRectF& rect) {
    if (!renderer_) load();
    if (!renderer_->isValid()) return;
    const QSizeF size = QSizeF(renderer_->defaultSize()).scaled(rect.size(), Qt::KeepAspectRatio);
    QRectF place(QPointF(), size);
    place.moveCenter(rect.center());
    renderer_->render(&painter, place);
  }
  void load() {
    const QByteArray text = source_();
    renderer_ = std::make_unique<QSvgRenderer>();
    if (!text.isEmpty()) renderer_->load(recoloured(text, scheme_));
  }
  Source source_;
  Scheme scheme_;
  std::unique_ptr<QSvgRenderer> renderer_;
  QPixmap kept_;
};

class DrawingEngine : public QIconEngine {
 public:
  explicit DrawingEngine(std::shared_ptr<Drawing> drawing) : drawing_(std::move(drawing)) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * 0.4);
    drawing_->render(*painter, rect);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }
  // Window managers ask for fixed sizes.
  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {{16, 16}, {32, 32}, {48, 48}, {128, 128}}; }
  QIconEngine* clone() const override { return new DrawingEngine(drawing_); }

 private:
  std::shared_ptr<Drawing> drawing_;
};

QIcon drawn(Drawing::Source source, Scheme scheme) {
  return QIcon(new DrawingEngine(std::make_shared<Drawing>(std::move(source), scheme)));
}

}  // namespace

QIcon icon(const QString& svgPath, Scheme scheme) {
  if (!QFile::exists(svgPath)) return {};
  return drawn(
      [svgPath] {
        QFile file(svgPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
      },
      scheme);
}

QIcon iconOf(QByteArray drawing, Scheme scheme) {
  return drawn([text = std::move(drawing)] { return text; }, scheme);
}

}  // namespace tarvo
