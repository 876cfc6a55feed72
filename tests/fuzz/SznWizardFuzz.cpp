// Any text as the host's request for the seasonal wizard, with a history in the store: the
// wizard reads its Context and the history, and a user walks it (a form chosen by the text's
// length, something typed or picked on every page on the way, Next until a last page, Finish,
// Back and Cancel when refused). Refusals of the host's XML are XmlComError; nothing else may
// escape, and nothing may crash, hang or leak. The host's document is never changed; at most one
// event comes, after Finish, and it is a document the layer reads back.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "../seasonal/SznSheetRun.h"
#include "dlgkit/fake/HeadlessSheetRunner.h"
#include "seasonal/SznWzrdPs.h"
#include "xml/Xml.h"

namespace {

struct CheckingOwner {
  orv::Status FireStatusEvent(std::int32_t, const std::string& value, std::int32_t, const std::string&, std::int32_t&) {
    XmlNode document = XmlCreateDocument();
    if (!XmlLoadString(document, value)) __builtin_trap();  // the wizard sent markup it can't read
    ++events;
    return 0;
  }
  int events = 0;
};

bool Reachable(orv::FakeControls& c, int id) {
  return c.HasDlgItem(id) && c.IsDlgItemVisible(id) && c.IsDlgItemEnabled(id);
}

// Something a user could do on whatever page is showing.
void PlayUser(orv::FakeControls& c, std::size_t seed) {
  for (int id :
       {IDC_SZN_SEASON_START, IDC_SZN_SEASON_END, IDC_SZN_FUT1_MONTH, IDC_SZN_FUT2_MONTH, IDC_SZN_SNGLROOT_MONTH}) {
    if (Reachable(c, id) && c.ComboGetCount(id) > 0)
      c.SelectComboItem(id, static_cast<int>(seed % static_cast<std::size_t>(c.ComboGetCount(id))));
  }
  for (int id : {IDC_SZN_YEARS_LIST, IDC_SZN_FUT1_YEARS, IDC_SZN_FUT2_YEARS, IDC_SZN_SNGLROOT_YEARS}) {
    if (Reachable(c, id) && c.ListGetCount(id) > 0)
      c.ToggleListItem(id, static_cast<int>(seed % static_cast<std::size_t>(c.ListGetCount(id))));
  }
  const char* texts[] = {"", "QNG", "1e308", "-0", "x<&>\"", "2.5"};
  for (int id : {IDC_SZN_YRCOUNT_COUNT}) {
    if (Reachable(c, id)) c.TypeText(id, seed % 2 ? "7" : "123");
  }
  for (int id :
       {IDC_SZN_FUT1_ROOT, IDC_SZN_FUT2_ROOT, IDC_SZN_SNGLROOT_ROOT, IDC_SZN_CASHSPRD_SYMBOL1, IDC_SZN_CASHSPRD_SYMBOL2,
        IDC_SZN_SNGLINST_SYMBOL, IDC_SZN_SNGLINSTMID_SYMBOL, IDC_SZN_MULT_1, IDC_SZN_MULT_2}) {
    if (Reachable(c, id)) c.TypeText(id, texts[(seed + static_cast<std::size_t>(id)) % 6]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  XmlNode document = XmlCreateDocument();
  if (!XmlLoadString(document, std::string_view(reinterpret_cast<const char*>(data), size))) return 0;
  const std::string before = XmlGetXml(document);
  orv::MemorySettingsStore store;
  store.WriteString("Software\\ZEL\\Chart", "Snl3WizFutureRoot_1", "?@C??3?x?-2.5");
  store.WriteString("Software\\ZEL\\Chart", "Snl3WizSelYears_1", "4000000000");
  store.WriteDword("Software\\ZEL\\Chart", "Snl3WizFormSel", static_cast<std::uint32_t>(size % 7));
  const std::string storeBefore = orv::FileSettingsStore::Serialize(store);
  orv::FixedClock clock(szntest::kToday);
  CheckingOwner owner;
  CSznWzrdPs<CheckingOwner> wizard(&owner, store, clock);
  orv::HeadlessSheetRunner runner;
  szntest::SetSznLayouts(runner);
  runner.SetScript([size](orv::HeadlessSheetRunner& run) {
    orv::HeadlessRunner& sheet = run.Sheet();
    for (int step = 0; step < 12 && sheet.IsRunning(); ++step) {
      if (sheet.CurrentPage() < 0) break;
      orv::FakeControls& c = run.Tab(sheet.CurrentPage());
      if (Reachable(c, IDC_SZN_FORM_SNGLINST)) c.Click(IDC_SZN_FORM_SNGLINST + static_cast<int>(size % 5));
      PlayUser(c, size + static_cast<std::size_t>(step));
      if (sheet.IsWizardButtonEnabled(orv::kWizFinish) && sheet.PressFinish()) return;
      if (!sheet.IsWizardButtonEnabled(orv::kWizNext) || !sheet.PressNext()) {
        if (step % 3 == 2) sheet.PressBack();
      }
    }
    if (sheet.IsRunning()) sheet.PressCancel();
  });
  try {
    const std::intptr_t result = wizard.Run(XmlFindNode(document, "PropertySheet", true), runner);
    if (result != 0 && result != 1) __builtin_trap();
    if (owner.events != (result == 1 ? 1 : 0)) __builtin_trap();
    // Only a finished run writes its history.
    if (result != 1 && orv::FileSettingsStore::Serialize(store) != storeBefore) __builtin_trap();
  } catch (const XmlComError&) {
    // The host's XML was refused: a documented failure.
  }
  if (XmlGetXml(document) != before) __builtin_trap();  // the host's document is read, never changed
  return 0;
}
