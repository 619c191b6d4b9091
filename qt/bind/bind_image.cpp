// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QPainter>
#include <utility>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/bind/image_widget.h"

namespace tarvo {

ImageWidget::ImageWidget(int side, QWidget* parent) : QWidget(parent) { setFixedSize(side, side); }

void ImageWidget::setImage(std::string name, QIcon icon) {
  name_ = std::move(name);
  icon_ = std::move(icon);
  update();
}

void ImageWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  icon_.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

namespace {

class ImageControlView : public ControlView {
 public:
  ImageControlView(ImageView& control, ImageWidget& image, Binder& binder)
      : ControlView(control, image, binder.registry()), control_(control), image_(image), binder_(binder) {
    ImageControlView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change) override {
    showCommonState();
    if (image_.imageName() != control_.image()) image_.setImage(control_.image(), binder_.icon(control_.image()));
  }

 private:
  ImageView& control_;
  ImageWidget& image_;
  Binder& binder_;
};

}  // namespace

QWidget* Binder::image(ImageView& control, int side, QWidget* parent) {
  auto* image = new ImageWidget(side, parent);
  new ImageControlView(control, *image, *this);
  return image;
}

}  // namespace tarvo
