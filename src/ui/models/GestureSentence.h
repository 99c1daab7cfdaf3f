#pragma once

#include <string>

#include "rules/GestureRule.h"
#include "rules/GestureTypeChoice.h"

namespace kinesta {

/// A type of gesture in one or two words, to stand below its picture.
std::string shortTitle(GestureTypeChoice type);

/// How the gesture of a rule is done, as a sentence: "Touch with four fingers together and lift, twice." Without a
/// gesture, how one is chosen.
std::string gestureSentence(const GestureRule& rule);

}  // namespace kinesta
