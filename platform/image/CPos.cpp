#include <ruqlib2image/Export.h>
