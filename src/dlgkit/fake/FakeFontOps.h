#pragma once
// Font operations for tests: a chosen screen DPI and internal leading, numbered font handles,
// and a record of every font made and deleted. Deleting a handle it never made, or one twice,
// is recorded as an error.

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "dlgkit/FontInfo.h"

namespace orv {

class FakeFontOps final : public FontOps {
 public:
  explicit FakeFontOps(int dpi = 96) : dpi_(dpi) {}

  void SetDpi(int dpi) { dpi_ = dpi; }
  // Text metrics: tmHeight is the font's |lfHeight|, tmInternalLeading this part of it.
  void SetInternalLeading(std::int32_t leading) { leading_ = leading; }
  void SetCreationFails(bool fails) { creationFails_ = fails; }

  int GetScreenLogPixelsY() override { return dpi_; }
  bool GetScreenTextMetrics(const LogFont& font, std::int32_t& height, std::int32_t& internalLeading) override;
  FontHandle CreateFontIndirectA(const LogFont& font) override;
  bool DeleteObject(FontHandle font) override;

  const std::vector<LogFont>& Created() const { return created_; }
  std::size_t LiveCount() const { return live_.size(); }
  int DeletedCount() const { return deleted_; }
  int MetricsCalls() const { return metricsCalls_; }
  const std::vector<std::string>& Errors() const { return errors_; }

 private:
  int dpi_;
  std::int32_t leading_ = 0;
  bool creationFails_ = false;
  std::vector<LogFont> created_;
  std::set<std::uintptr_t> live_;
  int deleted_ = 0;
  int metricsCalls_ = 0;
  std::vector<std::string> errors_;
};

}  // namespace orv
