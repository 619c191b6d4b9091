// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>
#include <string>

namespace tarvo {

// A square that paints an icon, crisp at the scale of the screen that it is on.
class ImageWidget : public QWidget {
 public:
  ImageWidget(int side, QWidget* parent);
  void setImage(std::string name, QIcon icon);
  const std::string& imageName() const { return name_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::string name_;
  QIcon icon_;
};

}  // namespace tarvo
