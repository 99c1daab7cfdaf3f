#include "ArgumentReader.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "TestRuntime.h"

namespace kinesta::objc {
namespace {

std::string numberText(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}

}  // namespace

std::string takeType(const char*& types) {
    static constexpr std::string_view skipped = "rnNoORVA0123456789-";
    while (*types && skipped.find(*types) != std::string_view::npos)
        ++types;
    std::string leaves;
    switch (*types) {
        case '@':
            leaves = *++types == '?' ? (++types, "?") : "@";
            break;
        case '^':
            takeType(++types);
            leaves = "^";
            break;
        case '{':
            while (*types && *types != '=' && *types != '}')
                ++types;
            if (*types == '=')
                ++types;
            while (*types && *types != '}')
                leaves += takeType(types);
            ++types;
            break;
        case '\0':
            break;
        default:
            leaves = *types++;
    }
    while (*types && *types >= '0' && *types <= '9')
        ++types;
    return leaves;
}

std::string ArgumentReader::take(const std::string& leaves) {
    if (leaves.size() == 1)
        return one(leaves[0], false);
    std::string text;
    const bool onStack =
        leaves.size() > 2 || (isReal(leaves[0]) ? m_vector + leaves.size() > 8 : m_integer + leaves.size() > 6);
    for (const char leaf : leaves)
        text += (text.empty() ? "" : " ") + one(leaf, onStack);
    return "{" + text + "}";
}

std::string ArgumentReader::one(char leaf, bool onStack) {
    if (isReal(leaf)) {
        const void* place = onStack || m_vector >= 8 ? static_cast<const void*>(&m_frame.stack[m_stacked++])
                                                     : m_frame.vectors[m_vector++];
        float single = 0;
        double real = 0;
        std::memcpy(&single, place, sizeof single);
        std::memcpy(&real, place, sizeof real);
        return numberText(leaf == 'd' ? real : single);
    }
    const std::uint64_t raw = onStack || m_integer >= 6 ? m_frame.stack[m_stacked++] : m_frame.integers[m_integer++];
    const auto pointer = reinterpret_cast<const char*>(raw);
    switch (leaf) {
        case '@':
        case '#':
            return describe(pointer);
        case '?':
            return pointer ? "block" : "nil";
        case '^':
            return pointer ? describe(pointer) : "null";
        case ':':
            return pointer ? "@" + std::string(pointer) : "no selector";
        case '*':
            return pointer ? "'" + std::string(pointer) + "'" : "null";
        case 'B':
            return (raw & 1) ? "YES" : "NO";
        case 'c':
            return std::to_string(static_cast<signed char>(raw));
        case 's':
            return std::to_string(static_cast<short>(raw));
        case 'S':
            return std::to_string(static_cast<unsigned short>(raw));
        case 'i':
            return std::to_string(static_cast<int>(raw));
        case 'I':
            return std::to_string(static_cast<unsigned>(raw));
        case 'q':
        case 'l':
            return std::to_string(static_cast<long>(raw));
        case 'Q':
        case 'L':
            return std::to_string(raw);
        default:
            return "?";
    }
}

}  // namespace kinesta::objc
