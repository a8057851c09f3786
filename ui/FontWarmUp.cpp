#include "FontWarmUp.h"

#include <fontconfig/fontconfig.h>

// The toolkit asks fontconfig for the same configuration and finds it loaded.
FontWarmUp::FontWarmUp() : loader([] { FcInit(); }) {}

FontWarmUp::~FontWarmUp() {
    if (loader.joinable()) loader.join();
}
