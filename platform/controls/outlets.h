// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tarvo {

class Control;

// A struct of controls that knows its members: a control enters itself when it is constructed. Rooms derive their
// outlet structs from it. Not copied or moved, since controls have addresses.
class Outlets {
 public:
  explicit Outlets(std::string owner) : owner_(std::move(owner)) {}  // "style", "picker" or "manager"
  Outlets(const Outlets&) = delete;
  Outlets& operator=(const Outlets&) = delete;
  const std::string& owner() const { return owner_; }
  const std::vector<Control*>& controls() const { return controls_; }

 protected:
  ~Outlets() = default;

 private:
  friend class Control;
  std::string owner_;
  std::vector<Control*> controls_;
};

}  // namespace tarvo
