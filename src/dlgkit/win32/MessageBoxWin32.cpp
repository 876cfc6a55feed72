#include <windows.h>

#include <string>

#include "dlgkit/MessageBox.h"

// The program's own themed box takes this place later; until then the platform's box.
int OrvMessageBox(orv::WindowHandle owner, std::string_view text, std::string_view caption, unsigned flags) {
  HWND ownerWindow = static_cast<HWND>(owner);
  if (ownerWindow && !(::IsWindow(ownerWindow) && ::IsWindowVisible(ownerWindow))) ownerWindow = nullptr;
  const std::string textZ(text);
  const std::string captionZ(caption);
  const int result = ::MessageBoxA(ownerWindow, textZ.c_str(), captionZ.c_str(), flags);
  return result == 0 ? -1 : result;
}
