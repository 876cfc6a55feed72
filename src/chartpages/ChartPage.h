#pragma once
// A standalone chart page as the property page frame sees it, and what the frame gives the page.
//
// A host shows a chart page in a property frame of its own. The frame hands the page one object,
// the chart, which offers IChartPageHost: the page asks it for its properties as XML when its
// window opens and gives it new XML on Apply. Each exchange builds a new document under the
// page's root element; nothing is shared with the host.
//
// A page class derives from ChartPageBase<T> (a ThemedPage with the contract below) and says
// what the frame needs: its dialog id, its root element, its scope, its title, how it reads the
// root (Load, after the host said it found properties), how it writes one (Save), and, when it
// has any, its validators (Validate). A control change marks the page dirty (MarkDirty).

#include <cstdint>
#include <memory>

#include "dlgkit/Page.h"
#include "dlgkit/ThemedPage.h"
#include "xml/Xml.h"

namespace orv {

// IPropertyPageSite::OnStatusChange flags (PROPPAGESTATUS_*).
inline constexpr std::uint32_t kPageStatusDirty = 1;
inline constexpr std::uint32_t kPageStatusClean = 4;

// What the frame knows of a page class.
struct ChartPageInfo {
  int dialogId = 0;           // the dialog template; also the help context
  const char* rootName = "";  // the element the page's properties travel under
  std::int32_t scope = 0;     // passed with every exchange: 0, 1 for ChartGenPpg
  const char* title = "";     // the tab's text: the string table entry titleId, where there is one
  int titleId = 0;            // string table id of the title
  const char* helpFile = "";  // the help file that Help joins to its directory; "" for none
};

// The chart object's IChartPageHost, as the pages use it. A failed call raises XmlComError.
class ChartPageHost {
 public:
  virtual ~ChartPageHost() = default;
  // The host fills `root` with the page's properties; `found` non-zero when it did.
  virtual void GetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& found) = 0;
  // The page's new properties under `root`; the host's `result` is not read.
  virtual void SetPageProperties(std::int32_t scope, XmlNode root, std::int32_t& result) = 0;
};

// The frame's side of a page: the objects the host gave (SetObjects) and the page site.
class ChartPageConnection {
 public:
  virtual ~ChartPageConnection() = default;
  // The first object's IChartPageHost, asked anew at each exchange; null when there is no
  // object or it has no such interface (not an error: the page does without).
  virtual std::unique_ptr<ChartPageHost> QueryHost() = 0;
  // IPropertyPageSite::OnStatusChange; nothing happens without a site.
  virtual void OnStatusChange(std::uint32_t flags) = 0;
};

class ChartPageFrame;

class ChartPage {
 public:
  virtual ~ChartPage() = default;

  virtual Page& AsPage() = 0;
  virtual const ChartPageInfo& Info() const = 0;

  // Reads the page's fields from `root`, which the host has filled (it answered found).
  virtual void Load(XmlNode root) = 0;
  // Writes the page's fields under a new `root`; false sends nothing to the host.
  virtual bool Save(XmlNode root) = 0;
  // The page's validators, run at Apply before anything else; false keeps the page dirty and
  // sends nothing. Pages without validators accept.
  virtual bool Validate() { return true; }
  // True for a page that reports itself clean right after its validation, before the exchange
  // with the host (ChartDrawPg); the others do so after it.
  virtual bool CleansBeforeExchange() const { return false; }
  // The page's window is about to go (the frame deactivates the page): a page that reads its
  // controls at Apply keeps what they show, as the frame may apply it without a window.
  virtual void OnWindowClosing() {}

  // The frame this page stands in; set by the frame before the page's window opens.
  void SetFrame(ChartPageFrame* frame) { frame_ = frame; }
  bool HasFrame() const { return frame_ != nullptr; }

 protected:
  ChartPageFrame& Frame() const;

 private:
  ChartPageFrame* frame_ = nullptr;
};

// The frame's state and algorithms for one page object: the dirty flag, the document of the last
// exchange, the opening and the Apply. It is the Page the window's dialog procedure drives: it
// hands every notification to the page, and after the page's init it makes the page open clean.
class ChartPageFrame final : public Page {
 public:
  ChartPageFrame(std::unique_ptr<ChartPage> page, ChartPageConnection& connection);
  ChartPageFrame(const ChartPageFrame&) = delete;
  ChartPageFrame& operator=(const ChartPageFrame&) = delete;
  ~ChartPageFrame() override;

  ChartPage& page() { return *page_; }
  const ChartPageInfo& Info() const { return page_->Info(); }

  // Opening, called by the page from its init: asks the host object for the page's properties
  // on a new document and root, and lets the page read them when the host found some. False when
  // nothing was read (no host object, or nothing found).
  bool ReadProperties();
  // The end of the opening: a page that became dirty while it opened is made clean and the site
  // is told (status 4).
  void FinishOpening();
  // IPropertyPage::Apply. Exceptions of the XML layer and of the host's calls pass through.
  void Apply();

  // The frame is about to destroy the page's window.
  void WindowClosing() { page_->OnWindowClosing(); }

  // A control changed: the page is dirty and the site is told (status 1), every time.
  void MarkDirty();
  bool IsDirty() const { return dirty_; }
  // The document of the last exchange with the host (null before the first); kept until the next
  // one, so that a root the host holds stays valid.
  const XmlNode& Document() const { return document_; }

  // Page: the page's own, with the opening's end after its init.
  int DialogId() const override;
  bool OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) override;
  bool OnInitDialog(Controls& controls, WindowHandle window, WindowOps* windowOps) override;
  bool OnSetActive() override;
  bool OnKillActive() override;
  ApplyResult OnApply() override;
  void OnReset() override;
  bool OnQueryCancel() override;
  void OnCommand(int id, int code) override;
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override;
  bool OnHelp() override;
  bool OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                          std::intptr_t& result) override;

 private:
  XmlNode NewRoot();
  void SetClean();

  std::unique_ptr<ChartPage> page_;
  ChartPageConnection& connection_;
  bool dirty_ = false;
  XmlNode document_;
};

// The base of a chart page class: a themed page that stands in a ChartPageFrame. Its init reads
// the properties first (ReadProperties) and prepares the controls (OnPropertiesRead: lists,
// ranges, colour buttons); the kit then themes the controls, the page moves its fields to them
// (OnControlsThemed), and the frame ends the opening.
template <class T>
class ChartPageBase : public ThemedPage<T>, public ChartPage {
 public:
  Page& AsPage() override { return *this; }
  int DialogId() const override { return this->Info().dialogId; }

 protected:
  // A control change: the page is dirty and the site told.
  void MarkDirty() { Frame().MarkDirty(); }
  bool IsDirty() const { return Frame().IsDirty(); }

  bool InitBeforeTheme() const final { return true; }
  bool OnInitPage() override {
    Frame().ReadProperties();
    return OnPropertiesRead();
  }
  bool OnThemed(bool initResult) final { return OnControlsThemed() && initResult; }
  // Prepares the controls before they are themed (lists, ranges, owner-drawn buttons).
  virtual bool OnPropertiesRead() { return true; }
  // Fills the themed controls from the fields the page read (or its defaults).
  virtual bool OnControlsThemed() { return true; }
};

}  // namespace orv
