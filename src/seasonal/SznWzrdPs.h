#pragma once
// CSznWzrdPs<T>: the seasonal chart wizard. It owns the twelve page objects, the wizard state,
// the working copy of the host's document and the labels. The host's document decides which
// pages the wizard shows and in what order; the pages decide where Next and Back lead.
//
// T is the owner: CChartPages in the component, a fake in tests. It provides
//   FireStatusEvent(int32 type, const std::string& value, int32 lValue, const std::string& xmlExtra, int32& result).
// Run() is the whole of a request: LoadSheetDocument, ReadContext, ReadHistory, ApplyDefaults,
// the modal run, and only when the user finished: WriteContractList, WriteHistory, WriteContext
// and one StatusEvent with the working document. Cancel leaves the host's document and the
// store as they were.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dlgkit/Clock.h"
#include "dlgkit/HostServices.h"
#include "dlgkit/SettingsStore.h"
#include "dlgkit/SheetRunner.h"
#include "dlgkit/StrHash.h"
#include "dlgkit/ThemedSheet.h"
#include "seasonal/SznPageTable.h"
#include "seasonal/WizardSeasonState.h"
#include "xml/Xml.h"
#include "xml/XmlError.h"

template <class T>
class CSznWzrdPs : public orv::ThemedSheet<CSznWzrdPs<T>> {
 public:
  static constexpr const char* kSheetName = "SznWzrdPs";

  // A null owner raises no event. `store` (the user's settings; the registry on Windows) and
  // `clock` outlive the sheet.
  CSznWzrdPs(T* owner, orv::SettingsStore& store, const orv::Clock& clock = orv::SystemClock())
      : owner_(owner), store_(store) {
    context_.clock = &clock;
    for (std::size_t i = 0; i < orv::seasonal::kSznPages.size(); ++i) {
      pages_.push_back(orv::seasonal::MakeSznPage(i, context_));
      if (!pages_.back()) throw XmlComError(orv::kStatusFail, "CSznWzrdPs: a page could not be made");
      table_.SetAt(orv::seasonal::kSznPages[i].name, pages_.back().get());
    }
    context_.state.Reset();
  }

  // Copies the host's PropertySheet into a new working document, reads YearEnterMode, and adds
  // the pages its PropertyPageList names, in its order; the first is the start page. Always 1.
  int LoadSheetDocument(XmlNode propertySheet) {
    sheetPages_.clear();
    document_ = XmlCreateDocument();
    if (!document_) return 1;
    if (propertySheet) XmlAppendClone(document_, propertySheet, true);
    XmlGetChildValue(propertySheet, "YearEnterMode", context_.state.YearEnterMode);
    XmlNode list = XmlFindNode(propertySheet, "PropertyPageList", true);
    if (!list) return 1;
    // Every sibling from the first PropertyPage on is taken as a page, whatever its element name.
    for (XmlNode page = XmlFindNode(list, "PropertyPage", true); page; page = XmlNextSibling(page)) {
      std::string name;
      XmlGetAttr(page, "Name", name);
      orv::seasonal::CPgBase* found = nullptr;
      // A name that isn't a page of the wizard adds nothing.
      if (table_.Lookup(name, found) && found) sheetPages_.push_back(found->GetPageRecord());
    }
    startPage_ = 0;
    return 1;
  }

  void ReadContext() { orv::seasonal::ReadContext(context_.state, document_); }
  void ReadHistory() { orv::seasonal::ReadHistory(context_.state, store_, *context_.clock); }
  void ApplyDefaults() { orv::seasonal::ApplyDefaults(context_.state); }

  std::intptr_t DoModal(orv::WindowHandle parent) {
    auto runner = orv::CreatePlatformSheetRunner();
    return DoModal(*runner, parent);
  }

  std::intptr_t DoModal(orv::SheetRunner& runner, orv::WindowHandle parent = nullptr) {
    orv::SheetSetup setup;
    setup.wizard = true;
    setup.parent = parent;
    setup.pages = sheetPages_;
    setup.startPage = startPage_;
    return this->RunThemed(runner, setup, [this] { TellHostOfOneUse(); });
  }

  bool WriteContractList() { return orv::seasonal::WriteContractList(context_.state, document_); }
  void WriteHistory() { orv::seasonal::WriteHistory(context_.state, store_); }
  void WriteContext() { orv::seasonal::WriteContext(context_.state, document_); }

  // The whole request on `runner`: the result is the run's (1 when the user finished).
  std::intptr_t Run(XmlNode propertySheet, orv::SheetRunner& runner, orv::WindowHandle parent = nullptr) {
    LoadSheetDocument(std::move(propertySheet));
    ReadContext();
    ReadHistory();
    ApplyDefaults();
    const std::intptr_t result = DoModal(runner, parent);
    if (result != 1) return result;
    WriteContractList();
    WriteHistory();
    WriteContext();
    if (owner_) {
      std::int32_t answer = 0;  // what the host answers changes nothing
      owner_->FireStatusEvent(0, XmlGetXml(document_), 0, std::string(), answer);
    }
    return result;
  }

  orv::seasonal::WizardSeasonState& State() { return context_.state; }
  const orv::seasonal::WizardSeasonState& State() const { return context_.state; }
  XmlNode Document() const { return document_; }
  // The pages the wizard shows, in order.
  const std::vector<orv::SheetPage>& SheetPages() const { return sheetPages_; }
  // The page object of a table key, null for a key that isn't one.
  orv::seasonal::CPgBase* PageOf(const std::string& name) const {
    orv::seasonal::CPgBase* found = nullptr;
    return table_.Lookup(name, found) ? found : nullptr;
  }

 private:
  // The sheet is up and themed: the host's settings service is told of one use of the wizard
  // (its answer, and its absence, change nothing).
  void TellHostOfOneUse() {
    try {
      if (auto service = orv::CurrentHostServices().CreateSettingsService()) {
        std::int32_t result = 0;
        service->SetValue("Displays/Seasonal", "ByWizard", 1, 4, result);
      }
    } catch (const XmlComError&) {
      // The count of uses is the host's business; a failing service doesn't stop the wizard.
    }
  }

  T* owner_;
  orv::SettingsStore& store_;
  orv::seasonal::SznWzrdContext context_;
  std::vector<std::unique_ptr<orv::seasonal::CPgBase>> pages_;
  TStrHash<orv::seasonal::CPgBase*, CStringTraits> table_;
  std::vector<orv::SheetPage> sheetPages_;
  int startPage_ = 0;
  XmlNode document_;
};
