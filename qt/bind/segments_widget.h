// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

class QToolButton;

namespace tarvo {

// The pieces of a segmented control side by side.
class SegmentsWidget : public QWidget {
 public:
  explicit SegmentsWidget(QWidget* parent);
  const std::vector<QToolButton*>& segments() const { return segments_; }
  void setSegmentCount(std::size_t count);  // makes them anew when it changes
  int selectedSegment() const;              // the checked one; -1: none

 private:
  std::vector<QToolButton*> segments_;
};

}  // namespace tarvo
