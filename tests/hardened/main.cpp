// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstring>

// A call and a buffer that the guards have to watch.
int main(int, char** argv) {
  char text[16];
  std::strcpy(text, argv[0]);
  return std::puts(text) < 0 ? 1 : 0;
}
