#include "seasonal/SznWzrdPgForm.h"
