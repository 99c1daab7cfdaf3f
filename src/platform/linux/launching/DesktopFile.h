#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kinesta {

/// The main group of a desktop file (*.desktop), and the form of its values.
class DesktopFile {
  public:
    /// Nothing if the file cannot be read. Lines that say nothing are ignored.
    static std::optional<DesktopFile> read(const std::string& path);

    /// Empty if the key is missing.
    std::string value(std::string_view key) const;
    /// The value for a locale lang_COUNTRY.ENCODING@MODIFIER; the closest match wins.
    std::string localizedValue(const std::string& key, std::string_view locale) const;
    /// The locale for messages, as the C library finds it.
    static std::string messageLocale();
    /// All keys and values.
    const std::map<std::string, std::string, std::less<>>& keys() const { return m_keys; }

    /// The words of a command line, split and unquoted as in a shell, without expansion. Nothing if a quote is not
    /// closed.
    static std::optional<std::vector<std::string>> words(std::string_view commandLine);
    /// A word as a command line in a file has it: quoted if necessary, and with no placeholders.
    static std::string quoted(std::string_view word);

  private:
    std::map<std::string, std::string, std::less<>> m_keys;
};

}  // namespace kinesta
