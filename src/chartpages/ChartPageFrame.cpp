#include "chartpages/ChartPage.h"

#include <stdexcept>
#include <utility>

namespace orv {

ChartPageFrame& ChartPage::Frame() const {
  if (frame_ == nullptr) throw std::logic_error("a chart page used outside a page frame");
  return *frame_;
}

ChartPageFrame::ChartPageFrame(std::unique_ptr<ChartPage> page, ChartPageConnection& connection)
    : page_(std::move(page)), connection_(connection) {
  page_->SetFrame(this);
}

ChartPageFrame::~ChartPageFrame() { page_->SetFrame(nullptr); }

// Each exchange has a document of its own, kept until the next one replaces it.
XmlNode ChartPageFrame::NewRoot() {
  document_ = XmlCreateDocument();
  return XmlAddChild(document_, Info().rootName);
}

bool ChartPageFrame::ReadProperties() {
  const std::unique_ptr<ChartPageHost> host = connection_.QueryHost();
  if (!host) return false;  // no data: the page shows its defaults
  XmlNode root = NewRoot();
  std::int32_t found = 0;
  host->GetPageProperties(Info().scope, root, found);
  if (found == 0) return false;
  page_->Load(root);
  return true;
}

void ChartPageFrame::FinishOpening() {
  if (dirty_) SetClean();
}

void ChartPageFrame::Apply() {
  // The validators come before the dirty test: a refused value keeps the page dirty.
  if (!page_->Validate()) return;
  if (!dirty_) return;
  const bool cleanFirst = page_->CleansBeforeExchange();
  if (cleanFirst) SetClean();
  if (const std::unique_ptr<ChartPageHost> host = connection_.QueryHost()) {
    XmlNode root = NewRoot();
    // A writer that refuses sends nothing, and the page stays as it was.
    if (!page_->Save(root)) return;
    std::int32_t result = 0;
    host->SetPageProperties(Info().scope, root, result);  // the host's answer is not read
  }
  if (!cleanFirst) SetClean();
}

void ChartPageFrame::MarkDirty() {
  dirty_ = true;
  connection_.OnStatusChange(kPageStatusDirty);
}

void ChartPageFrame::SetClean() {
  dirty_ = false;
  connection_.OnStatusChange(kPageStatusClean);
}

// Page: the page's own operations.

int ChartPageFrame::DialogId() const { return Info().dialogId; }

bool ChartPageFrame::OnAnyMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                                  std::intptr_t& result) {
  return page_->AsPage().OnAnyMessage(message, wParam, lParam, result);
}

bool ChartPageFrame::OnInitDialog(Controls& controls, WindowHandle window, WindowOps* windowOps) {
  const bool defaultFocus = page_->AsPage().OnInitDialog(controls, window, windowOps);
  FinishOpening();
  return defaultFocus;
}

bool ChartPageFrame::OnSetActive() { return page_->AsPage().OnSetActive(); }
bool ChartPageFrame::OnKillActive() { return page_->AsPage().OnKillActive(); }
ApplyResult ChartPageFrame::OnApply() { return page_->AsPage().OnApply(); }
void ChartPageFrame::OnReset() { page_->AsPage().OnReset(); }
bool ChartPageFrame::OnQueryCancel() { return page_->AsPage().OnQueryCancel(); }
void ChartPageFrame::OnCommand(int id, int code) { page_->AsPage().OnCommand(id, code); }

bool ChartPageFrame::OnNotify(int id, int code, const void* payload, std::intptr_t& result) {
  return page_->AsPage().OnNotify(id, code, payload, result);
}

bool ChartPageFrame::OnHelp() { return page_->AsPage().OnHelp(); }

bool ChartPageFrame::OnUnhandledMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                                        std::intptr_t& result) {
  return page_->AsPage().OnUnhandledMessage(message, wParam, lParam, result);
}

}  // namespace orv
