#pragma once
// A host object for a chart page on its template's controls: it hands the page `properties`
// (under the page's root) with `found`, and keeps what each exchange carried: the scopes asked
// and sent, the XML Apply sends (compacted), and the site's statuses.

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ChartPagesTemplates.h"
#include "chartpages/ChartPage.h"
#include "dlgkit/fake/ControlsFake.h"
#include "dlgkit/fake/FakeSheetOwner.h"
#include "dlgkit/fake/TemplateLayout.h"
#include "xml/Xml.h"

namespace orv::testing_pages {

class HostConnection final : public ChartPageConnection {
 public:
  bool hasHost = true;
  std::string properties;
  std::int32_t found = 1;
  std::vector<std::int32_t> scopesAsked;
  std::vector<std::int32_t> scopesSent;
  std::vector<std::string> sent;
  std::vector<std::uint32_t> statuses;

  std::unique_ptr<ChartPageHost> QueryHost() override {
    if (!hasHost) return nullptr;
    return std::make_unique<Host>(*this);
  }
  void OnStatusChange(std::uint32_t flags) override { statuses.push_back(flags); }

 private:
  struct Host final : ChartPageHost {
    explicit Host(HostConnection& owner) : owner_(owner) {}
    void GetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& found) override {
      owner_.scopesAsked.push_back(scope);
      XmlNode source = XmlCreateDocument();
      EXPECT_TRUE(XmlLoadString(source, "<Source>" + owner_.properties + "</Source>"));
      for (XmlNode child = XmlFirstChild(XmlFindChild(source, "Source")); child; child = XmlNextSibling(child))
        XmlAppendClone(root, child, true);
      found = owner_.found;
    }
    void SetPageProperties(std::int32_t scope, XmlNode root, std::int32_t&) override {
      owner_.scopesSent.push_back(scope);
      owner_.sent.push_back(Compact(XmlGetXml(root)));
    }
    HostConnection& owner_;
  };
};

// A page of class P in its frame, opened on its template's controls with the host's properties.
template <class P>
struct OpenPage {
  explicit OpenPage(const std::string& properties, bool hasHost = true, std::int32_t found = 1)
      : frame(std::make_unique<P>(), connection), page(static_cast<P&>(frame.page())) {
    connection.properties = properties;
    connection.hasHost = hasHost;
    connection.found = found;
    const TemplateDialog* dialog = FindTemplate(templates::kDialogs, page.Info().dialogId);
    EXPECT_NE(dialog, nullptr);
    if (dialog) AddTemplateControls(*dialog, controls);
    controls.AttachPage(&frame);
    frame.OnInitDialog(controls, nullptr, nullptr);
  }
  std::string Text(int id) { return controls.GetDlgItemTextA(id, 256); }
  // Apply, and the one document the host got ("" when none).
  std::string Apply() {
    const std::size_t before = connection.sent.size();
    frame.Apply();
    return connection.sent.size() > before ? connection.sent.back() : std::string();
  }

  HostConnection connection;
  ChartPageFrame frame;
  P& page;
  FakeControls controls;
};

}  // namespace orv::testing_pages
