#pragma once

#include <functional>
#include <memory>

#include "support/Result.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The application's user defaults, for the application itself and for other programs of it, such as the command line.
/// Several of them may run and write at once. Main thread only.
class MacUserDefaults final : public UserDefaults {
  public:
    /// `domain` is the identifier of the application's bundle.
    explicit MacUserDefaults(const std::string& domain);
    MacUserDefaults(const MacUserDefaults&) = delete;
    MacUserDefaults& operator=(const MacUserDefaults&) = delete;
    ~MacUserDefaults() override;

    bool contains(std::string_view key) const override;
    std::optional<bool> boolean(std::string_view key) const override;
    std::optional<std::int64_t> integer(std::string_view key) const override;
    std::optional<double> real(std::string_view key) const override;
    std::optional<std::string> string(std::string_view key) const override;
    std::optional<std::string> data(std::string_view key) const override;
    std::optional<std::string> anyAsText(std::string_view key) const override;

    void setBoolean(std::string_view key, bool value) override;
    void setInteger(std::string_view key, std::int64_t value) override;
    void setReal(std::string_view key, double value) override;
    void setString(std::string_view key, std::string value) override;
    void setData(std::string_view key, std::string bytes) override;
    void remove(std::string_view key) override;

    /// Whether a value that was read or written here has been changed by someone else since. Asks the system, which
    /// has every change of other processes at hand.
    bool reload();

    /// Calls `onChange` on the main thread when someone else may have changed the settings: another program of ours, or
    /// other code of this process. Other programs change them unnoticed until reload().
    void watch(std::function<void()> onChange);

    /// Waits until the system has all changes: what a program that ends right after a change has to do.
    Outcome save();

  private:
    struct Impl;
    std::shared_ptr<Impl> m_impl;
};

}  // namespace kinesta
