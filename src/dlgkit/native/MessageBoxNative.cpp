#include "dlgkit/MessageBox.h"

// No window system natively: nobody can answer, so the box reports that it wasn't shown.
int OrvMessageBox(orv::WindowHandle, std::string_view, std::string_view, unsigned) { return -1; }
