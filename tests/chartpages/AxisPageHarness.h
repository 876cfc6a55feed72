#pragma once
// An axes page in its frame on its template's controls, with a host object that hands it a
// document's children as its properties and keeps what Apply sends (compacted markup).

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ChartPagesTemplates.h"
#include "chartpages/ChartPage.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "xml/Xml.h"

namespace axes_test {

class HostConnection final : public orv::ChartPageConnection {
 public:
  std::string properties;  // the root's children; none found when `found` is 0
  std::int32_t found = 1;
  std::vector<std::string> sent;
  std::vector<std::uint32_t> statuses;
  std::vector<std::string> calls;  // "status <flags>" and "set", in order

  std::unique_ptr<orv::ChartPageHost> QueryHost() override { return std::make_unique<Host>(*this); }
  void OnStatusChange(std::uint32_t flags) override {
    statuses.push_back(flags);
    calls.push_back("status " + std::to_string(flags));
  }

 private:
  struct Host final : orv::ChartPageHost {
    explicit Host(HostConnection& owner) : owner_(owner) {}
    void GetPageProperties(std::int32_t, XmlNode root, std::int32_t& found) override {
      XmlNode source = XmlCreateDocument();
      ASSERT_TRUE(XmlLoadString(source, "<Source>" + owner_.properties + "</Source>"));
      for (XmlNode child = XmlFirstChild(XmlFindChild(source, "Source")); child; child = XmlNextSibling(child))
        XmlAppendClone(root, child, true);
      found = owner_.found;
    }
    void SetPageProperties(std::int32_t, XmlNode root, std::int32_t&) override {
      owner_.sent.push_back(orv::Compact(XmlGetXml(root)));
      owner_.calls.push_back("set");
    }
    HostConnection& owner_;
  };
};

template <class PageT>
struct AxisPage {
  AxisPage(const std::string& properties, std::unique_ptr<PageT> made)
      : frame(std::move(made), connection), page(static_cast<PageT&>(frame.page())) {
    connection.properties = properties;
    const orv::TemplateDialog* dialog = orv::FindTemplate(orv::templates::kDialogs, page.Info().dialogId);
    EXPECT_NE(dialog, nullptr);
    if (dialog) orv::AddTemplateControls(*dialog, controls);
    controls.AttachPage(&frame);
    frame.OnInitDialog(controls, nullptr, nullptr);
  }
  bool Enabled(int id) { return controls.IsDlgItemEnabled(id); }
  std::string Text(int id) { return controls.GetDlgItemTextA(id, 256); }
  int Check(int id) { return controls.IsDlgButtonChecked(id); }
  // Applies and gives what the host got; "" when nothing was sent.
  std::string Applied() {
    frame.Apply();
    return connection.sent.empty() ? std::string() : connection.sent.back();
  }

  HostConnection connection;
  orv::ChartPageFrame frame;
  PageT& page;
  orv::FakeControls controls;
};

}  // namespace axes_test
