// The dialog ids of the three pages the sheet sequence tests show (their templates are in
// win32/SheetSequenceWin32Test.rc; the headless sheet needs none).
#pragma once

#define IDD_SEQ_PAGE_A 3101
#define IDD_SEQ_PAGE_B 3102
#define IDD_SEQ_PAGE_C 3103
// The one edit field of every page.
#define IDC_SEQ_EDIT 1000
