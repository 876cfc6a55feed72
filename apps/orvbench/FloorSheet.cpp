#include "FloorSheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <cstring>
#include <vector>

namespace orv::bench {
namespace {

// A DLGTEMPLATE followed by its menu, class, title and font, in WORDs, DWORD-aligned as the
// platform wants it.
class PageTemplate {
 public:
  PageTemplate() {
    DLGTEMPLATE header{};
    header.style = DS_SETFONT | DS_CONTROL | WS_CHILD | WS_CAPTION;
    header.cx = 250;
    header.cy = 150;
    Append(&header, sizeof header);
    words_.push_back(0);  // no menu
    words_.push_back(0);  // the dialog class
    AppendText(L"Floor");
    words_.push_back(8);  // point size
    AppendText(L"MS Shell Dlg");
  }
  const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  void Append(const void* data, std::size_t size) {
    const std::size_t at = words_.size();
    words_.resize(at + size / sizeof(WORD));
    std::memcpy(words_.data() + at, data, size);
  }
  void AppendText(const wchar_t* text) {
    do words_.push_back(static_cast<WORD>(*text));
    while (*text++ != L'\0');
  }

  std::vector<WORD> words_;
};

INT_PTR CALLBACK FloorPageProc(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG ? TRUE : FALSE; }

INT_PTR RunSheet(HWND parent, std::vector<HPROPSHEETPAGE>& pages) {
  PROPSHEETHEADERW header{};
  header.dwSize = sizeof header;
  header.dwFlags = 0;  // modal, with OK, Cancel and Apply
  header.hwndParent = parent;
  header.pszCaption = L"Floor";
  header.nPages = static_cast<UINT>(pages.size());
  header.phpage = pages.data();
  return PropertySheetW(&header);  // destroys the pages
}

}  // namespace

INT_PTR RunFloorSheet(HWND parent) {
  static const PageTemplate pageTemplate;
  PROPSHEETPAGEW page{};
  page.dwSize = sizeof page;
  page.dwFlags = PSP_DLGINDIRECT;
  page.pResource = pageTemplate.get();
  page.pfnDlgProc = &FloorPageProc;
  std::vector<HPROPSHEETPAGE> pages{CreatePropertySheetPageW(&page)};
  if (pages.front() == nullptr) return -1;
  return RunSheet(parent, pages);
}

INT_PTR RunTemplateSheet(HWND parent, HINSTANCE module, std::initializer_list<int> templateIds) {
  std::vector<HPROPSHEETPAGE> pages;
  for (const int id : templateIds) {
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_DEFAULT;
    page.hInstance = module;
    page.pszTemplate = MAKEINTRESOURCEW(id);
    page.pfnDlgProc = &FloorPageProc;
    HPROPSHEETPAGE handle = CreatePropertySheetPageW(&page);
    if (handle == nullptr) {
      for (HPROPSHEETPAGE made : pages) DestroyPropertySheetPage(made);
      return -1;
    }
    pages.push_back(handle);
  }
  return RunSheet(parent, pages);
}

}  // namespace orv::bench
