// CFontInfo on the platform's GDI: LOGFONTA both ways, real fonts shared by the process-wide
// cache and deleted with their last user, points from a real font's metrics.
#include "dlgkit/win32/FontOpsWin32.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using orv::CFontInfo;

TEST(FontOpsWin32Test, LogFontAndLOGFONTAHoldTheSameFields) {
  LOGFONTA platform{};
  platform.lfHeight = -13;
  platform.lfWidth = 4;
  platform.lfEscapement = 900;
  platform.lfOrientation = 450;
  platform.lfWeight = FW_BOLD;
  platform.lfItalic = 1;
  platform.lfUnderline = 1;
  platform.lfStrikeOut = 1;
  platform.lfCharSet = ANSI_CHARSET;
  platform.lfOutPrecision = OUT_TT_PRECIS;
  platform.lfClipPrecision = CLIP_DEFAULT_PRECIS;
  platform.lfQuality = CLEARTYPE_QUALITY;
  platform.lfPitchAndFamily = VARIABLE_PITCH | FF_SWISS;
  std::strcpy(platform.lfFaceName, "Tahoma");
  const LOGFONTA back = orv::ToLOGFONTA(orv::FromLOGFONTA(platform));
  EXPECT_EQ(std::memcmp(&back, &platform, sizeof platform), 0);
}

TEST(FontOpsWin32Test, RecordsShareOneRealFontUntilTheLastGoes) {
  HFONT handle = nullptr;
  {
    CFontInfo a;
    a.FaceName = "Arial";
    a.PtSize = 9;
    CFontInfo b = a;
    b.FaceName = "arial";
    ASSERT_NE(a.MakeFont(), nullptr);
    ASSERT_NE(b.MakeFont(), nullptr);
    handle = static_cast<HFONT>(a.GetFontHandle());
    EXPECT_EQ(b.GetFontHandle(), handle);
    EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_FONT));
    LOGFONTA made{};
    ASSERT_EQ(GetObjectA(handle, sizeof made, &made), static_cast<int>(sizeof made));
    EXPECT_EQ(made.lfHeight, MulDiv(9, orv::ProcessFontCache().ScreenDpi(), -72));
    EXPECT_STREQ(made.lfFaceName, "Arial");
  }
  EXPECT_EQ(GetObjectType(handle), 0u);  // deleted with its last user
}

TEST(FontOpsWin32Test, PointsFromACellHeightAreNegativeAndSmaller) {
  LOGFONTA cell{};
  cell.lfHeight = 40;  // a cell height: the character is smaller by the internal leading
  cell.lfWeight = FW_NORMAL;
  std::strcpy(cell.lfFaceName, "Arial");
  CFontInfo info;
  orv::FromLogFont(info, cell);
  const int dpi = orv::ProcessFontCache().ScreenDpi();
  EXPECT_LT(info.PtSize, 0);
  EXPECT_GE(info.PtSize, -MulDiv(40, 72, dpi));
  LOGFONTA out{};
  orv::ToLogFont(info, out);
  EXPECT_EQ(out.lfHeight, MulDiv(info.PtSize, dpi, -72));
  EXPECT_GT(out.lfHeight, 0);
}

}  // namespace
