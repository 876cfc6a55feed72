// Plays a parsed script against the sheet that the modal call opens, on this (the UI) thread:
// a thread timer started before the call waits for the active sheet of the thread and then runs
// one command per tick, as a user's clicks and keystrokes would arrive.
#pragma once

#include "Script.h"

#include <windows.h>

#include <string>
#include <vector>

namespace orv::host_app {

class ScriptDriver {
 public:
  explicit ScriptDriver(std::vector<ScriptStep> steps);
  ScriptDriver(const ScriptDriver&) = delete;
  ScriptDriver& operator=(const ScriptDriver&) = delete;
  ~ScriptDriver();

  // Before the modal call. One driver at a time per process.
  bool Start();
  // After the modal call: stops the timer; commands left after a shown sheet closed are an error.
  void Stop();

  bool SheetSeen() const { return sheetSeen_; }
  std::size_t StepsRun() const { return next_; }
  bool Finished() const { return next_ == steps_.size(); }
  // Empty unless a command failed (the sheet was then cancelled).
  const std::string& Error() const { return error_; }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void Tick();
  // Runs one command against the sheet; an error text on failure.
  std::string Run(const ScriptStep& step, HWND sheet);
  void Fail(std::string why, HWND sheet);
  void KillTimerNow();

  std::vector<ScriptStep> steps_;
  std::size_t next_ = 0;
  UINT_PTR timer_ = 0;
  DWORD started_ = 0;
  DWORD notBefore_ = 0;
  DWORD busySince_ = 0;
  bool busy_ = false;
  bool sheetSeen_ = false;
  std::string error_;
};

// The visible property sheet among this thread's top-level windows, or null.
HWND FindThreadSheet();

// A window's caption (its first 255 characters), as the messages about it quote it.
std::string CaptionOf(HWND window);

}  // namespace orv::host_app
