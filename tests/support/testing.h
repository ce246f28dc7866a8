// The words that all tests use: Google's macros and matchers, a list of texts, and the everyday headers of
// the standard library.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace quillet {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

using Strings = std::vector<std::string>;

}  // namespace quillet
