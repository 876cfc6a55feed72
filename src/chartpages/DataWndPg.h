#pragma once
// CDataWndPg: what the chart's floating data window shows: the kinds of item (a check list whose
// rows are the bits of "DW_VisibleFields"), how price fields are laid out and ordered, a custom
// field picked from the host's fields (CShowFidsDlg), how the instrument is named, and the
// window's transparency. The host's colour and font flag, inactive flag and font are carried.

#include <cstdint>
#include <string>

#include "chartpages/ChartPage.h"
#include "chartpages/ChartPagesRes.h"
#include "dlgkit/DataExchange.h"
#include "dlgkit/FontInfo.h"
#include "xml/Xml.h"

class CDataWndPg final : public orv::ChartPageBase<CDataWndPg> {
 public:
  static constexpr const char* kRootName = "DataWndPg";
  // The rows of the "Show:" list; row i is bit i of the visible fields.
  static constexpr const char* kShowRows[] = {
      "Symbols in Parameters Lists", "Date",        "Symbol Charts", "Function Charts", "Line Studies",
      "Data Option Codes",           "Custom Field"};
  static constexpr const char* kFormats[] = {"One field per line", "All fields on one line"};
  static constexpr const char* kOrders[] = {
      "La, H, L, O, NC", "O, H, L, La, NC", "La, H, L", "H, L, La", "La, NC", "La", "None"};
  static constexpr const char* kShowColumn = "Display Item";

  // What Reset puts back (the inactive flag, the transparency and the font stay).
  static constexpr std::int32_t kDefaultInstId = 0;
  static constexpr const char* kDefaultFidDesc = "Description";
  static constexpr std::int32_t kDefaultUserFid = 79;
  static constexpr std::int32_t kDefaultOneLine = 0;
  static constexpr std::int32_t kDefaultFieldOrder = 0;
  static constexpr std::uint32_t kDefaultVisibleFields = 95;
  static constexpr std::int32_t kDefaultColorFont = 0;
  static constexpr std::uint32_t kDefaultAlpha = 127;

  CDataWndPg();

  // ChartPage
  const orv::ChartPageInfo& Info() const override { return info_; }
  void Load(XmlNode root) override;
  bool Save(XmlNode root) override;
  bool Validate() override;
  bool CleansBeforeExchange() const override { return true; }
  void OnWindowClosing() override;

  // Page
  void OnCommand(int id, int code) override;
  bool OnNotify(int id, int code, const void* payload, std::intptr_t& result) override;

  std::uint32_t VisibleFields() const { return visibleFields_; }
  std::int32_t UserFid() const { return userFid_; }
  const std::string& FidDesc() const { return fidDesc_; }

 protected:
  bool OnInitPage() override;

 private:
  void ShowValues();
  void ReadControls();
  void Reset();
  void ChangeField();
  void SetDirty();

  orv::ChartPageInfo info_;
  std::int32_t instId_ = kDefaultInstId;
  std::string fidDesc_ = kDefaultFidDesc;
  std::int32_t userFid_ = kDefaultUserFid;
  std::int32_t oneLine_ = kDefaultOneLine;
  std::int32_t fieldOrder_ = kDefaultFieldOrder;
  std::uint32_t visibleFields_ = kDefaultVisibleFields;
  std::int32_t colorFont_ = kDefaultColorFont;
  std::uint8_t inactives_ = 0;
  std::uint32_t alpha_ = kDefaultAlpha;
  orv::CFontInfo font_;
  bool loading_ = true;
  bool hasWindow_ = false;
};
