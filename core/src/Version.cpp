#include <tsffit/Version.h>

const char* tsffit::CoreVersion() { return TSFFIT_VERSION; }
