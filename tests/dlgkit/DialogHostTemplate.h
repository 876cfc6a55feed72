#pragma once
// An in-memory dialog template (DLGTEMPLATE and its items) for tests that need real dialogs.

#include <windows.h>

#include <string>
#include <vector>

namespace orv::test {

inline constexpr WORD kButtonClass = 0x0080;
inline constexpr WORD kEditClass = 0x0081;
inline constexpr WORD kStaticClass = 0x0082;
inline constexpr WORD kComboBoxClass = 0x0085;

class DialogTemplateBuilder {
 public:
  DialogTemplateBuilder(const std::string& title, short cx, short cy,
                        DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME | DS_SETFONT) {
    // DLGTEMPLATE: style, extended style, item count (patched in Build), x, y, cx, cy.
    PutDword(style);
    PutDword(0);
    words_.push_back(0);
    words_.push_back(10);
    words_.push_back(10);
    words_.push_back(static_cast<WORD>(cx));
    words_.push_back(static_cast<WORD>(cy));
    words_.push_back(0);  // no menu
    words_.push_back(0);  // the standard dialog class
    PutString(title);
    words_.push_back(8);  // point size of DS_SETFONT
    PutString("MS Shell Dlg");
  }

  void AddItem(WORD classAtom, const std::string& text, WORD id, DWORD style, short x, short y, short cx, short cy) {
    PutItemHeader(id, style, x, y, cx, cy);
    words_.push_back(0xFFFF);
    words_.push_back(classAtom);
    PutItemEnd(text);
  }
  // A control of a class known by its name ("SysListView32").
  void AddItem(const std::string& className, const std::string& text, WORD id, DWORD style, short x, short y, short cx,
               short cy) {
    PutItemHeader(id, style, x, y, cx, cy);
    PutString(className);
    PutItemEnd(text);
  }

  std::vector<WORD> Build() const {
    std::vector<WORD> result = words_;
    result[4] = items_;  // cdit follows style and extended style
    return result;
  }

 private:
  void PutItemHeader(WORD id, DWORD style, short x, short y, short cx, short cy) {
    if (words_.size() % 2) words_.push_back(0);  // items start on a DWORD boundary
    PutDword(WS_CHILD | WS_VISIBLE | style);
    PutDword(0);
    words_.push_back(static_cast<WORD>(x));
    words_.push_back(static_cast<WORD>(y));
    words_.push_back(static_cast<WORD>(cx));
    words_.push_back(static_cast<WORD>(cy));
    words_.push_back(id);
  }
  void PutItemEnd(const std::string& text) {
    PutString(text);
    words_.push_back(0);  // no creation data
    ++items_;
  }
  void PutDword(DWORD value) {
    words_.push_back(LOWORD(value));
    words_.push_back(HIWORD(value));
  }
  void PutString(const std::string& text) {
    for (char c : text) words_.push_back(static_cast<unsigned char>(c));
    words_.push_back(0);
  }
  std::vector<WORD> words_;
  WORD items_ = 0;
};

inline const DLGTEMPLATE* AsTemplate(const std::vector<WORD>& words) {
  return reinterpret_cast<const DLGTEMPLATE*>(words.data());
}

}  // namespace orv::test
