#pragma once

#include <cstddef>
#include <string>

#include "Metadata.h"

namespace kinesta::objc {

/// Takes one type off an encoding: the leaves of a struct ("dddd" of a rectangle), or one letter. Offsets and
/// qualifiers are dropped.
std::string takeType(const char*& types);

/// Reads arguments from where the calling convention has put them.
class ArgumentReader {
  public:
    ArgumentReader(const CallFrame& frame, std::size_t firstInteger) : m_frame(frame), m_integer(firstInteger) {}

    /// The text of the next argument, whose type has these leaves.
    std::string take(const std::string& leaves);

  private:
    static bool isReal(char leaf) { return leaf == 'd' || leaf == 'f'; }
    std::string one(char leaf, bool onStack);

    const CallFrame& m_frame;
    std::size_t m_integer;
    std::size_t m_vector = 0;
    std::size_t m_stacked = 0;
};

}  // namespace kinesta::objc
