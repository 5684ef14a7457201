#include <ruqlib2core/Export.h>
