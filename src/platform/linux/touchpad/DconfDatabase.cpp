#include "platform/linux/touchpad/DconfDatabase.h"

#include <cstddef>
#include <cstdint>

namespace kinesta {
namespace {

// A database is a signature, a version and options of four bytes each, and the bounds of its hash table. The table is a
// word that counts the words of a Bloom filter in its lower 27 bits, the number of buckets, the filter, the buckets and
// the items. An item is: hash, index of the parent, place and length of the last part of its key, type, and the bounds
// of its value. All numbers are little-endian where the signature reads as below.
constexpr std::string_view kSignature = "GVariant";
constexpr std::uint32_t kTableBounds = 16;
constexpr std::uint32_t kFilterWords = (1U << 27) - 1;
constexpr std::size_t kItemSize = 24;
constexpr std::uint32_t kNoParent = 0xffffffff;
/// A value is followed by its type.
constexpr std::string_view kStringType{"\0\0s", 3};

class Database {
  public:
    explicit Database(std::string_view bytes) : m_bytes(bytes) {
        if (!bytes.starts_with(kSignature))
            return;
        const std::string_view table = range(number(bytes, kTableBounds), number(bytes, kTableBounds + 4));
        const std::uint64_t filter = number(table, 0) & kFilterWords;
        const std::uint64_t items = 8 + 4 * (filter + number(table, 4));
        if (items <= table.size())
            m_items = table.substr(items);
    }

    std::uint32_t itemCount() const { return static_cast<std::uint32_t>(m_items.size() / kItemSize); }

    std::optional<std::string> string(std::uint32_t item) const {
        const std::string_view entry = m_items.substr(item * kItemSize, kItemSize);
        const std::string_view value = range(number(entry, 16), number(entry, 20));
        if (entry[14] != 'v' || !value.ends_with(kStringType))
            return std::nullopt;
        return std::string(value.substr(0, value.size() - kStringType.size()));
    }

    /// Whether the parts of the key, from this item up to the root, make `key`.
    bool hasKey(std::uint32_t item, std::string_view key) const {
        while (item < itemCount()) {
            const std::string_view entry = m_items.substr(item * kItemSize, kItemSize);
            const std::uint64_t start = number(entry, 8);
            const std::string_view part = range(start, start + (number(entry, 12) & 0xffff));
            if (part.empty() || !key.ends_with(part))
                return false;
            key.remove_suffix(part.size());
            item = number(entry, 4);
        }
        return item == kNoParent && key.empty();
    }

  private:
    std::string_view range(std::uint64_t start, std::uint64_t end) const {
        return start <= end && end <= m_bytes.size() ? m_bytes.substr(start, end - start) : std::string_view();
    }

    static std::uint32_t number(std::string_view bytes, std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t i = 4; at + 4 <= bytes.size() && i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
        return value;
    }

    std::string_view m_bytes;
    std::string_view m_items;
};

}  // namespace

std::optional<std::string> dconfString(std::string_view database, std::string_view key) {
    const Database items(database);
    for (std::uint32_t item = 0; item < items.itemCount(); ++item)
        if (items.hasKey(item, key))
            return items.string(item);
    return std::nullopt;
}

}  // namespace kinesta
