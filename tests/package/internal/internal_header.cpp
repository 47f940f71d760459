// Must not compile: the header is no part of the package.
#include <mqPostCommon/catalogue/table.h>
