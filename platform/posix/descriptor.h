// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// File descriptors that close themselves, and the loops around read and write. Everything is opened close-on-exec.
// Where something fails, errno says why.
namespace tarvo {

class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor();
  explicit operator bool() const { return number_ >= 0; }
  int get() const { return number_; }
  int release();  // gives it away
  bool close();   // false when the system reports a late write error

 private:
  int number_;
};

bool writeAll(int file, std::string_view bytes);
// Everything from here to the end; nothing after an error or beyond the limit (EFBIG).
std::optional<std::string> readAll(int file, std::size_t expected, std::size_t limit);
// Opens a folder for listing and for the …at calls; flags as for open, such as O_NOFOLLOW.
Descriptor openFolder(int base, const std::string& path, int flags = 0);
// The names in an open folder without "." and "..", in the disk's order.
std::optional<std::vector<std::string>> namesIn(int folder);
// Puts the names that an open folder holds on the disk. Some disks cannot sync a folder, and that is no failure; false
// only where the names may be lost: after an error of the disk, and on a full one.
bool syncFolder(int folder);
// Puts a file of an open folder and its name on the disk; links are not followed. Also a file that may not be read.
bool syncFileIn(int folder, const std::string& name);
// The name of a temporary file: nobody can guess it, and it tells who made it (temporaries.h). "" where the system
// gives no random number.
std::string temporaryName();

}  // namespace tarvo
