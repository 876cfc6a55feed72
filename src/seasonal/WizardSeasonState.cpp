// The wizard's state from its three sources (the document's Context, the history, the defaults)
// and to its three destinations (the contract list, the history, a rewritten Context).
#include "seasonal/WizardSeasonState.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "xml/StrFormat.h"

namespace orv::seasonal {

namespace {

// A day serial as the wizard writes it: truncated toward zero. A value no int holds gives the
// integer indefinite (INT_MIN), as the processor's conversion does.
int Truncate(double value) {
  if (!(value > -2147483649.0 && value < 2147483648.0)) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

// The piece at `index`, or "" when the split gave fewer.
const std::string& PieceAt(const std::vector<std::string>& pieces, std::size_t index) {
  static const std::string kNone;
  return index < pieces.size() ? pieces[index] : kNone;
}

// atoi of registry text, without its undefined overflow: a number past the int range stops at
// the range's end, as the C libraries' atoi does in practice.
int AtoI(const std::string& text) {
  const long long value = std::strtoll(text.c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

RegistryHistory MakeHistory(SettingsStore& store, const char* nameFormat) {
  return RegistryHistory(store, kSeasonalKey, nameFormat, kHistoryLimit);
}

// The first entry of a history, split at '?' without empty pieces; empty when there is none.
bool LoadFirstRecord(SettingsStore& store, const char* nameFormat, std::vector<std::string>& pieces) {
  RegistryHistory history = MakeHistory(store, nameFormat);
  history.Load();
  if (history.Entries().empty()) return false;
  pieces = SplitText(history.Entries().front(), "?", false);
  return true;
}

void LoadNumbers(SettingsStore& store, const char* nameFormat, std::vector<int>& numbers) {
  RegistryHistory history = MakeHistory(store, nameFormat);
  history.Load();
  for (const std::string& entry : history.Entries()) numbers.push_back(AtoI(entry));
}

void SaveNumbers(SettingsStore& store, const char* nameFormat, const std::vector<int>& numbers) {
  RegistryHistory history = MakeHistory(store, nameFormat);
  for (int number : numbers) history.Add(orv::StrFormat("%d", number));
  history.Save();
}

void SaveText(SettingsStore& store, const char* nameFormat, const std::string& text) {
  RegistryHistory history = MakeHistory(store, nameFormat);
  history.Add(text);
  history.Save();
}

XmlNode NeedDocument(XmlNode document) {
  if (!document) throw XmlComError(orv::kStatusPointer, "no working document");
  return XmlFirstChild(document);
}

void AddYearList(XmlNode parent, const char* name, const char* itemName, const std::vector<int>& values) {
  XmlNode list = XmlAddChild(parent, name);
  for (int value : values) XmlAddValueChild(list, itemName, value);
}

void AddFuture(XmlNode list, const std::string& root, int month, double multiplier) {
  XmlNode future = XmlAddChild(list, "Future");
  XmlSetAttr(future, "Root", root);
  XmlSetAttrValue(future, "Month", month);
  XmlSetAttrDouble(future, "Multiplier", multiplier);
}

}  // namespace

std::vector<std::string> SplitText(std::string_view text, std::string_view separator, bool keepEmpty) {
  std::vector<std::string> pieces;
  auto add = [&](std::string_view piece) {
    if (keepEmpty || !piece.empty()) pieces.emplace_back(piece);
  };
  if (separator.empty()) {
    add(text);
    return pieces;
  }
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator, start)) {
    add(text.substr(start, at - start));
    start = at + separator.size();
  }
  add(text.substr(start));
  return pieces;
}

void ReadContext(WizardSeasonState& state, XmlNode document) {
  XmlNode context = XmlFindNode(document, "Context", true);
  if (!context) return;

  XmlGetChildValue(context, "FormSel", state.FormSel);
  XmlGetChildValue(context, "YearsBack", state.YearsBack);

  if (XmlNode window = XmlFindNode(context, "MonthDayWindow", true)) {
    std::int32_t start = 0, end = 0;
    XmlGetAttrValue(window, "Start", start);
    XmlGetAttrValue(window, "End", end);
    state.Start.value = start;
    state.End.value = end;
  }

  try {
    std::int32_t index = 0;  // a child without a number repeats the one before
    for (XmlNode child = XmlFirstChild(XmlFindNode(context, "SelYearList", true)); child;
         child = XmlNextSibling(child)) {
      XmlGetNodeValue(child, index);
      state.SelYearIndexes.push_back(index);
    }
  } catch (const XmlComError&) {
    state.SelYearIndexes.clear();
  }

  try {
    for (XmlNode child = XmlFirstChild(XmlFindNode(context, "SymbolList", true)); child;
         child = XmlNextSibling(child)) {
      std::string text;
      XmlGetNodeText(child, text);
      if (state.Symbol1.empty()) {
        state.Symbol1 = text;
      } else if (state.Symbol2.empty()) {
        state.Symbol2 = text;
      }
    }
  } catch (const XmlComError&) {
    state.Symbol2.clear();
  }

  try {
    for (XmlNode child = XmlFirstChild(XmlFindNode(context, "FutureList", true)); child;
         child = XmlNextSibling(child)) {
      std::string root;
      std::int32_t month = 0;
      double multiplier = 1.0;
      XmlGetAttr(child, "Root", root);
      XmlGetAttrValue(child, "Month", month);
      XmlGetAttrDouble(child, "Multiplier", multiplier);
      if (state.Root1.empty()) {
        state.Root1 = root;
        state.Month1 = month;
        state.Multiplier1 = multiplier;
      } else if (state.Root2.empty()) {
        state.Root2 = root;
        state.Month2 = month;
        state.Multiplier2 = multiplier;
      }
    }
  } catch (const XmlComError&) {
    state.Root1.clear();
  }

  try {
    std::int32_t year = 0;  // as for SelYearList: one value for the whole list of lists
    int number = 0;
    for (XmlNode list = XmlFirstChild(XmlFindNode(context, "YearListList", true)); list;
         list = XmlNextSibling(list), ++number) {
      for (XmlNode child = XmlFirstChild(list); child; child = XmlNextSibling(child)) {
        XmlGetNodeValue(child, year);
        if (number == 0) {
          state.Years1.push_back(year);
        } else if (number == 1) {
          state.Years2.push_back(year);
        }
      }
    }
  } catch (const XmlComError&) {
    state.Years1.clear();
  }
}

void ReadHistory(WizardSeasonState& state, SettingsStore& store, const Clock& clock) {
  std::vector<std::string> pieces;
  if (state.Start.value == 0.0) {
    if (LoadFirstRecord(store, kHistStartEndMonth, pieces)) {
      state.Start.value = AtoI(PieceAt(pieces, 0));
      state.End.value = AtoI(PieceAt(pieces, 1));
    } else {
      const int year = clock.Now().year;
      state.Start = MakeSeasonDate(year, 1, 1);
      state.End = MakeSeasonDate(year, 12, 31);
    }
  }
  if (state.SelYearIndexes.empty()) LoadNumbers(store, kHistSelYears, state.SelYearIndexes);
  if (state.Symbol1.empty() && LoadFirstRecord(store, kHistSymbol, pieces)) {
    state.Symbol1 = PieceAt(pieces, 0);
    state.Symbol2 = PieceAt(pieces, 1);
  }
  if (state.FormSel < 0) {
    const auto value = store.ReadDword(kSeasonalKey, kValueFormSel);
    state.FormSel = value ? static_cast<int>(*value) : 0;
  }
  if (state.YearsBack < 0) {
    const auto value = store.ReadDword(kSeasonalKey, kValueYearsBack);
    state.YearsBack = value ? static_cast<int>(*value) : -1;
  }
  if (state.Root1.empty() && LoadFirstRecord(store, kHistFutureRoot, pieces)) {
    state.Root1 = PieceAt(pieces, 0);
    state.Root2 = PieceAt(pieces, 1);
    state.Month1 = AtoI(PieceAt(pieces, 2));
    state.Month2 = AtoI(PieceAt(pieces, 3));
    state.Multiplier1 = std::atof(PieceAt(pieces, 4).c_str());
    state.Multiplier2 = std::atof(PieceAt(pieces, 5).c_str());
  }
  if (state.Years1.empty()) LoadNumbers(store, kHistFutureYr1, state.Years1);
  if (state.Years2.empty()) LoadNumbers(store, kHistFutureYr2, state.Years2);
}

void ApplyDefaults(WizardSeasonState& state) {
  if (state.YearsBack < 0) state.YearsBack = 5;
  if (state.YearEnterMode < 0) state.YearEnterMode = 0;
  if (state.FormSel < 0) state.FormSel = 0;
  if (state.Root1.empty()) state.Root1 = "@C";
  if (state.Root2.empty()) state.Root2 = "@S";
  if (state.Month1 < 0) state.Month1 = 0;
  if (state.Month2 < 0) state.Month2 = 0;
  if (state.Symbol1.empty()) state.Symbol1 = "MSFT";
  if (state.Symbol2.empty()) state.Symbol2 = "INDU.X";
}

bool WriteContractList(const WizardSeasonState& state, XmlNode document) {
  try {
    XmlNode root = NeedDocument(document);
    for (const char* name : {"StartMonthIndex", "EndMonthIndex", "ContractList", "YearsBack"}) {
      if (XmlNode old = XmlFindNode(root, name, true)) XmlRemoveNode(old);
    }
    XmlAddValueChild(root, "StartMonthIndex", MonthOf(state.Start));
    XmlAddValueChild(root, "EndMonthIndex", MonthOf(state.End));
    XmlAddValueChild(root, "YearsBack", state.YearsBack);

    const std::size_t count = state.YearEnterMode == 1 ? 1 : state.SelYears.size();
    if (count < 1) return true;
    XmlNode list = XmlAddChild(root, "ContractList");
    for (std::size_t i = 0; i < count; ++i) {
      XmlNode contract = XmlAddChild(list, "Contract");
      XmlSetAttr(contract, "Symbol", i < state.Labels.size() ? state.Labels[i] : std::string());
      XmlSetAttrValue(contract, "Year", i < state.SelYears.size() ? state.SelYears[i] : -1);
    }
    return true;
  } catch (const XmlComError&) {
    return false;
  }
}

void WriteHistory(const WizardSeasonState& state, SettingsStore& store) {
  SaveText(store, kHistStartEndMonth, orv::StrFormat("%d?%d", Truncate(state.Start.value), Truncate(state.End.value)));
  SaveNumbers(store, kHistSelYears, state.SelYearIndexes);
  SaveText(store, kHistSymbol, orv::StrFormat("%s?%s", state.Symbol1.c_str(), state.Symbol2.c_str()));
  store.WriteDword(kSeasonalKey, kValueFormSel, static_cast<std::uint32_t>(state.FormSel));
  store.WriteDword(kSeasonalKey, kValueYearsBack, static_cast<std::uint32_t>(state.YearsBack));
  SaveText(store, kHistFutureRoot,
           orv::StrFormat("%s?%s?%d?%d?%f?%f", state.Root1.c_str(), state.Root2.c_str(), state.Month1, state.Month2,
                          state.Multiplier1, state.Multiplier2));
  SaveNumbers(store, kHistFutureYr1, state.Years1);
  SaveNumbers(store, kHistFutureYr2, state.Years2);
}

void WriteContext(const WizardSeasonState& state, XmlNode document) {
  XmlNode root = NeedDocument(document);
  if (XmlNode old = XmlFindNode(root, "Context", true)) XmlRemoveNode(old);
  XmlNode context = XmlAddChild(root, "Context");

  XmlAddValueChild(context, "FormSel", state.FormSel);
  XmlAddValueChild(context, "YearsBack", state.YearsBack);
  XmlNode window = XmlAddChild(context, "MonthDayWindow");
  XmlSetAttrValue(window, "Start", Truncate(state.Start.value));
  XmlSetAttrValue(window, "End", Truncate(state.End.value));
  AddYearList(context, "SelYearList", "SelYear", state.SelYearIndexes);
  XmlNode symbols = XmlAddChild(context, "SymbolList");
  XmlAddTextChild(symbols, "Symbol", state.Symbol1);
  XmlAddTextChild(symbols, "Symbol", state.Symbol2);
  XmlNode futures = XmlAddChild(context, "FutureList");
  AddFuture(futures, state.Root1, state.Month1, state.Multiplier1);
  AddFuture(futures, state.Root2, state.Month2, state.Multiplier2);
  XmlNode yearLists = XmlAddChild(context, "YearListList");
  AddYearList(yearLists, "YearList", "Year", state.Years1);
  AddYearList(yearLists, "YearList", "Year", state.Years2);
}

}  // namespace orv::seasonal
