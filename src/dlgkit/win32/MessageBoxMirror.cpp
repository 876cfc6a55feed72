// The flags and answers of dlgkit/MessageBox.h are the platform's MB_ and ID values.
#include <windows.h>

#include "dlgkit/MessageBox.h"

namespace orv {

static_assert(kMbOk == MB_OK);
static_assert(kMbOkCancel == MB_OKCANCEL);
static_assert(kMbYesNoCancel == MB_YESNOCANCEL);
static_assert(kMbYesNo == MB_YESNO);
static_assert(kMbIconHand == MB_ICONHAND);
static_assert(kMbIconQuestion == MB_ICONQUESTION);
static_assert(kMbIconExclamation == MB_ICONEXCLAMATION);
static_assert(kMbIconAsterisk == MB_ICONASTERISK);

static_assert(kIdOk == IDOK);
static_assert(kIdCancel == IDCANCEL);
static_assert(kIdYes == IDYES);
static_assert(kIdNo == IDNO);

}  // namespace orv
