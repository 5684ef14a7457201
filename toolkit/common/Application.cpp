#include <qt3/Export.h>
