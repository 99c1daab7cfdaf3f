#include "cli/terminal/TextTable.h"

#include <algorithm>
#include <cstdint>

namespace kinesta {
namespace {

constexpr std::size_t kGap = 2;

struct CodePoint {
    std::uint32_t value;
    std::size_t length;
};

// Malformed bytes count as one character each: the terminal decides how to show them.
CodePoint codePointAt(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i])); };
    const std::uint32_t first = byte(0);
    const std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 0;
    if (length == 0 || length > text.size())
        return {first, 1};
    if (length == 1)
        return {first, 1};
    std::uint32_t value = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U)
            return {first, 1};
        value = (value << 6U) | (byte(i) & 0x3FU);
    }
    return {value, length};
}

bool isControl(std::uint32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; }

std::size_t widthOf(std::uint32_t c) {
    if ((c >= 0x300 && c < 0x370) || (c >= 0x200B && c <= 0x200F) || (c >= 0xFE00 && c <= 0xFE0F))
        return 0;
    const bool isWide = (c >= 0x1100 && c < 0x1160) || (c >= 0x2E80 && c < 0xA4D0) || (c >= 0xAC00 && c < 0xD7A4) ||
                        (c >= 0xF900 && c < 0xFB00) || (c >= 0xFE30 && c < 0xFE70) || (c >= 0xFF00 && c < 0xFF61) ||
                        (c >= 0x1F300 && c < 0x1FAFF) || (c >= 0x20000 && c < 0x3FFFE);
    return isWide ? 2 : 1;
}

}  // namespace

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const CodePoint point = codePointAt(text);
        width += widthOf(point.value);
        text.remove_prefix(point.length);
    }
    return width;
}

std::string fitted(std::string_view text, std::size_t width) {
    if (displayWidth(text) <= width)
        return std::string(text);
    std::string result;
    std::size_t used = 0;
    while (!text.empty()) {
        const CodePoint point = codePointAt(text);
        used += widthOf(point.value);
        if (used + 1 > width)
            break;
        result += text.substr(0, point.length);
        text.remove_prefix(point.length);
    }
    return width == 0 ? std::string() : result + "…";
}

std::string printable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const CodePoint point = codePointAt(text);
        if (isControl(point.value))
            result += "·";
        else
            result += text.substr(0, point.length);
        text.remove_prefix(point.length);
    }
    return result;
}

void TextTable::print(const Console& console) const {
    std::vector<std::vector<std::string>> rows;
    std::vector<std::size_t> widths;
    for (const auto& row : m_rows) {
        auto& cells = rows.emplace_back();
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            cells.push_back(printable(row[i]));
            widths[i] = std::max(widths[i], displayWidth(cells.back()));
        }
    }
    const auto available = static_cast<std::size_t>(std::max(console.columns, 0));
    for (std::size_t line = 0; line < rows.size(); ++line) {
        std::string text;
        for (std::size_t i = 0; i < rows[line].size(); ++i) {
            text += rows[line][i];
            if (i + 1 < rows[line].size())
                text.append(widths[i] - displayWidth(rows[line][i]) + kGap, ' ');
        }
        if (available > 0)
            text = fitted(text, available);
        console.out << (line == 0 ? console.bold(text) : text) << '\n';
    }
}

}  // namespace kinesta
