#include "dlgkit/win32/WindowSubclass.h"

#include <unordered_map>

namespace orv {
namespace {

struct Subclass {
  WindowSubclassProc proc = nullptr;
  void* data = nullptr;
  WNDPROC original = nullptr;
  bool unicode = true;
  bool removed = false;  // a pass-through: taken off while another subclass sat in front
};

// A window's messages come on the thread that made it, so each thread keeps its own windows.
thread_local std::unordered_map<HWND, Subclass> t_subclasses;

LRESULT CallOriginal(const Subclass& subclass, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return subclass.unicode ? ::CallWindowProcW(subclass.original, window, message, wParam, lParam)
                          : ::CallWindowProcA(subclass.original, window, message, wParam, lParam);
}

LRESULT Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool unicode) {
  const auto found = t_subclasses.find(window);
  if (found == t_subclasses.end())
    return unicode ? ::DefWindowProcW(window, message, wParam, lParam)
                   : ::DefWindowProcA(window, message, wParam, lParam);
  // A copy: the procedure may subclass other windows, and the map may move its entries.
  const Subclass subclass = found->second;
  const LRESULT result = subclass.removed ? CallOriginal(subclass, window, message, wParam, lParam)
                                          : subclass.proc(window, message, wParam, lParam, subclass.data);
  if (message == WM_NCDESTROY) t_subclasses.erase(window);
  return result;
}

LRESULT CALLBACK EntryW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(window, message, wParam, lParam, true);
}

LRESULT CALLBACK EntryA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Dispatch(window, message, wParam, lParam, false);
}

}  // namespace

bool SubclassWindowProc(HWND window, WindowSubclassProc proc, void* data) {
  if (!window || !proc || ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId()) return false;
  if (t_subclasses.count(window)) return false;
  Subclass subclass;
  subclass.proc = proc;
  subclass.data = data;
  subclass.unicode = ::IsWindowUnicode(window) != FALSE;
  // In the map first: the window may be sent a message while its procedure changes.
  t_subclasses.emplace(window, subclass);
  ::SetLastError(0);
  const LONG_PTR original = subclass.unicode
                                ? ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&EntryW))
                                : ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&EntryA));
  if (original == 0 && ::GetLastError() != 0) {
    t_subclasses.erase(window);
    return false;
  }
  t_subclasses.find(window)->second.original = reinterpret_cast<WNDPROC>(original);
  return true;
}

LRESULT CallOriginalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto found = t_subclasses.find(window);
  if (found == t_subclasses.end()) return ::DefWindowProcW(window, message, wParam, lParam);
  const Subclass subclass = found->second;
  return CallOriginal(subclass, window, message, wParam, lParam);
}

void* WindowSubclassData(HWND window, WindowSubclassProc proc) {
  const auto found = t_subclasses.find(window);
  if (found == t_subclasses.end() || found->second.proc != proc || found->second.removed) return nullptr;
  return found->second.data;
}

void RemoveWindowSubclassProc(HWND window, WindowSubclassProc proc) {
  const auto found = t_subclasses.find(window);
  if (found == t_subclasses.end() || found->second.proc != proc) return;
  Subclass& subclass = found->second;
  const LONG_PTR entry = reinterpret_cast<LONG_PTR>(subclass.unicode ? &EntryW : &EntryA);
  const LONG_PTR current =
      subclass.unicode ? ::GetWindowLongPtrW(window, GWLP_WNDPROC) : ::GetWindowLongPtrA(window, GWLP_WNDPROC);
  if (current != entry) {
    subclass.removed = true;
    return;
  }
  const LONG_PTR original = reinterpret_cast<LONG_PTR>(subclass.original);
  if (subclass.unicode)
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, original);
  else
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, original);
  t_subclasses.erase(found);
}

}  // namespace orv
