// The files under Stylesheets/res/ as the build embeds them; their definitions are generated. Use
// Resources.h.
#pragma once

#include <string_view>

extern const std::string_view kCommonMatchXslt;
extern const std::string_view kTree2SerialXslt;
