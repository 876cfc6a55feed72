#pragma once
// Dialog and control ids of the line study pages. They are the templates' numbers and part of the
// design: a page's dialog id is also its code in the sheet's apply message.

// The Advanced page.
#define IDD_LS_PG_ADVANCED 1352
#define IDC_LS_ATTACH_BOX 4644
#define IDC_LS_ATTACH_SYMBOL 4645
#define IDC_LS_ATTACH_CHART 4646
#define IDC_LS_ATTACH_SCREEN 4647
