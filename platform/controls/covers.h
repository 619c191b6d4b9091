// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace tarvo {

class RunLoop;
class Window;

// Who covers whom: the one record of what hangs over a window as a sheet, be it a window of the program or a panel, and
// of what runs modally. Whoever opens a sheet asks here.
// Duty: keep the record, and let operations that need a free window wait for their turn. Not: showing anything, or
// opening what waits: an operation does that itself. Windows are known by address; the record owns none.
class Covers {
 public:
  // Operations that waited begin from the run loop, so that the action that ended a sheet has come to its end.
  explicit Covers(RunLoop& runLoop) : runLoop_(runLoop) {}
  Covers(const Covers&) = delete;
  Covers& operator=(const Covers&) = delete;

  struct Sheet {
    Window* host;
    Window* window;  // null: a panel
  };
  const std::vector<Sheet>& sheets() const { return sheets_; }
  bool hasSheet(const Window& host) const;
  // No sheet hangs over the host, and nobody who came before waits for it.
  bool isFree(const Window& host) const;
  bool isAnythingUp() const { return !sheets_.empty() || !modal_.empty(); }
  Window* modalWindow() const;  // the innermost window that runs; null when none does

  // Runs an operation that opens a sheet over the host, whole and at once, when the host is free. Else it waits until
  // its turn comes, first come first served; modal runs hold nobody up. When its turn comes and the host is no longer
  // shown or shows another page than when the operation was asked for, it has lost its sense and is dropped.
  void whenFree(Window& host, std::function<void()> operation);
  std::size_t waiting() const { return waiting_.size(); }
  void close();  // the program ends: what waits is dropped, and so is what comes

  // For those who show sheets: Windows its own, CoveringPanels the shell's panels, a shell what only it has. window:
  // null for a panel. The handler runs once the sheet is out of the record, and before those who wait.
  void beginSheet(Window& host, Window* window) { sheets_.push_back({&host, window}); }
  void endSheet(const Window& host, const Window* window, const std::function<void()>& handler);
  // As long as it lives something runs modally. window: null for a panel. Runs nest.
  class ModalRun {
   public:
    ModalRun(Covers& covers, Window* window) : covers_(covers) { covers_.modal_.push_back(window); }
    ~ModalRun() { covers_.modal_.pop_back(); }
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

   private:
    Covers& covers_;
  };

 private:
  struct Waiting {
    Window* host;
    int page;
    std::function<void()> operation;
  };
  void wake();
  void serve();
  RunLoop& runLoop_;
  std::vector<Sheet> sheets_;
  std::vector<Window*> modal_;
  std::vector<Waiting> waiting_;
  bool closed_ = false, awake_ = false, serving_ = false;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // the loop may outlive the record
};

}  // namespace tarvo
