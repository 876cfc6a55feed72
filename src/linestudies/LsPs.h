#pragma once
// CLsPs<T>: the line study sheet. It reads the pages to show from the host's PropertySheet
// (a private deep copy), makes them from the page table, runs them modally and, each time a
// changed page applies (message kWmLsPageApply), sends that page alone to the host through T's
// FireStatusEvent. Nothing is written into the host's XML.
//
// T is the owner: CChartPages in the component, a fake in tests. It provides
//   FireStatusEvent(int32 type, const std::string& value, int32 lValue, const std::string& xmlExtra, int32& result).
// The calls, in order: construct, InitFromXml, SetChartData (DoModal2 only), DoModal, destroy.

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dlgkit/ChartData.h"
#include "dlgkit/Controls.h"
#include "dlgkit/SheetRunner.h"
#include "dlgkit/ThemedSheet.h"
#include "linestudies/LineStudyPage.h"
#include "linestudies/LsPageTable.h"
#include "linestudies/LsSheetTab.h"
#include "xml/Xml.h"
#include "xml/XmlError.h"

template <class T>
class CLsPs : public orv::ThemedSheet<CLsPs<T>> {
 public:
  static constexpr const char* kSheetName = "LSPs";

  // A null owner makes a sheet that raises no events.
  explicit CLsPs(T* owner) : owner_(owner) {}

  // Reads `node` (the host's PropertySheet) into a private copy and builds the pages it lists.
  void InitFromXml(XmlNode node) {
    tabs_.clear();
    document_ = XmlCreateDocument();
    if (!document_) return;  // no document object: a sheet without pages
    XmlNode sheet = node ? XmlAppendClone(document_, node, true) : XmlNode();
    title_.clear();
    if (node) XmlGetAttr(node, "Title", title_);
    XmlNode list = XmlFindNode(XmlFirstChild(sheet), "PropertyPageList", true);
    // The pages are what lies below the list, not what follows it.
    XmlNode first = XmlFindNode(XmlFirstChild(list), "PropertyPage", true);
    for (XmlNode element = first; element; element = XmlFindNode(XmlNextSibling(element), "PropertyPage", false)) {
      std::string elementName;
      if (!XmlGetAttr(element, "Name", elementName)) continue;
      const auto table = orv::LsPageTable();
      for (std::size_t slot = 0; slot < table.size(); ++slot) {
        if (elementName != table[slot].name) continue;
        if (!table[slot].create) break;  // not built yet: passed over like an unknown name
        // A name that comes twice adds the same object as a second tab and loads it again, on
        // top of what the first element gave it.
        if (!slots_[slot]) slots_[slot] = table[slot].create();
        tabs_.push_back(slot);
        slots_[slot]->Load(element);
        break;
      }
    }
  }

  // Hands the chart's values to every existing page that takes them; a page keeps what it has
  // when it is the same object.
  void SetChartData(orv::ChartDataRef chartData) {
    const auto table = orv::LsPageTable();
    for (std::size_t slot = 0; slot < table.size(); ++slot) {
      if (slots_[slot] && table[slot].takesChartData) slots_[slot]->SetChartData(chartData);
    }
  }

  // Runs the platform's sheet with `parent` as its owner.
  std::intptr_t DoModal(orv::WindowHandle parent) {
    auto runner = orv::CreatePlatformSheetRunner();
    return DoModal(*runner, parent);
  }

  std::intptr_t DoModal(orv::SheetRunner& runner, orv::WindowHandle parent = nullptr) {
    const auto table = orv::LsPageTable();
    orv::SheetSetup setup;
    setup.title = title_;
    setup.parent = parent;
    // Each tab drives its page object through a tab of its own, so that an object in two tabs
    // always works on the window of the tab that speaks (see LsSheetTab).
    std::array<LsSheetTab::Views, orv::kLsPageCount> views{};
    std::vector<std::unique_ptr<LsSheetTab>> tabPages;
    for (std::size_t slot : tabs_) {
      tabPages.push_back(std::make_unique<LsSheetTab>(*slots_[slot], views[slot]));
      setup.pages.push_back({tabPages.back().get(), table[slot].dialogId});
    }
    setup.onPageApply = [this](int dialogId) { return OnPageApply(dialogId); };
    // The sheet is a themed dialog too: its own children (tabs, buttons) get the host's theme.
    return this->RunThemed(runner, setup);
  }

  // kWmLsPageApply: a page with `dialogId` applies. Builds the document holding that page alone
  // and raises StatusEvent with it, when the page exists and is dirty. Always answers 0.
  std::intptr_t OnPageApply(int dialogId) {
    document_ = XmlCreateDocument();
    if (!document_) throw XmlComError(orv::kStatusFail, "no XML document for the apply");
    XmlNode sheet = XmlAddChild(document_, "PropertySheet");
    XmlSetAttr(sheet, "Name", kSheetName);
    XmlNode list = XmlAddChild(sheet, "PropertyPageList");
    const auto table = orv::LsPageTable();
    for (std::size_t slot = 0; slot < table.size(); ++slot) {
      if (table[slot].dialogId != dialogId) continue;
      if (!slots_[slot] || !slots_[slot]->IsDirty()) return 0;
      XmlNode page = XmlAddChild(list, "PropertyPage");
      XmlSetAttr(page, "Name", table[slot].name);
      slots_[slot]->Save(page);
      if (owner_) {
        std::int32_t answer = 0;  // the host's answer changes nothing
        owner_->FireStatusEvent(0, XmlGetXml(document_), 0, std::string(), answer);
      }
      return 0;
    }
    return 0;
  }

  const std::string& Title() const { return title_; }
  // The tabs in order, as page table names.
  std::vector<std::string> TabNames() const {
    std::vector<std::string> names;
    for (std::size_t slot : tabs_) names.emplace_back(orv::LsPageTable()[slot].name);
    return names;
  }
  // The page with that dialog id, null when the sheet has none.
  orv::LineStudyPage* PageOf(int dialogId) const {
    const auto table = orv::LsPageTable();
    for (std::size_t slot = 0; slot < table.size(); ++slot) {
      if (table[slot].dialogId == dialogId) return slots_[slot].get();
    }
    return nullptr;
  }
  // The sheet's document: the copy after InitFromXml, the last document sent after an apply.
  XmlNode Document() const { return document_; }

 private:
  T* owner_;
  std::array<std::unique_ptr<orv::LineStudyPage>, orv::kLsPageCount> slots_;
  std::vector<std::size_t> tabs_;  // slot of each tab, in tab order
  XmlNode document_;
  std::string title_;
};
