#pragma once

#include <streambuf>

namespace kinesta {

/// Writes into another buffer and remembers why that failed, which streams do not report.
class NotingBuffer final : public std::streambuf {
  public:
    /// `target` must outlive this.
    explicit NotingBuffer(std::streambuf& target) : m_target(target) {}

    /// errno of the first failure; 0 if there was none.
    int failure() const { return m_failure; }

  protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize length) override;
    int sync() override;

  private:
    void note(bool hasFailed);

    std::streambuf& m_target;
    int m_failure = 0;
};

}  // namespace kinesta
