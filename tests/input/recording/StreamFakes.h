#pragma once

#include <optional>
#include <streambuf>
#include <string>

namespace kinesta {

/// An input that after its beginning repeats one character for ever, or breaks, as a folder or a failing disk does.
class ContinuedInput final : public std::streambuf {
  public:
    explicit ContinuedInput(std::string beginning, std::optional<char> rest = std::nullopt)
        : m_piece(std::move(beginning)), m_rest(rest) {
        show();
    }

    std::size_t given = 0;

  private:
    void show() { setg(m_piece.data(), m_piece.data(), m_piece.data() + m_piece.size()); }
    int_type underflow() override {
        if (!m_rest)
            throw 5;
        given += m_piece.size();
        m_piece.assign(5000, *m_rest);
        show();
        return traits_type::to_int_type(*m_rest);
    }

    std::string m_piece;
    std::optional<char> m_rest;
};

/// An input without a buffer that never says how much it has, like that of a pipe shared with C.
class UnbufferedInput final : public std::streambuf {
  public:
    explicit UnbufferedInput(std::string text) : m_text(std::move(text)) {}

  private:
    int_type underflow() override {
        return m_at < m_text.size() ? traits_type::to_int_type(m_text[m_at]) : traits_type::eof();
    }
    int_type uflow() override {
        return m_at < m_text.size() ? traits_type::to_int_type(m_text[m_at++]) : traits_type::eof();
    }

    std::string m_text;
    std::size_t m_at = 0;
};

/// An output that counts its flushes and holds no more than a number of bytes.
class CountingOutput final : public std::streambuf {
  public:
    explicit CountingOutput(std::size_t capacity = std::string::npos) : m_capacity(capacity) {}

    std::string text;
    int flushes = 0;

  private:
    std::streamsize xsputn(const char* data, std::streamsize size) override {
        if (text.size() + static_cast<std::size_t>(size) > m_capacity)
            return 0;
        text.append(data, static_cast<std::size_t>(size));
        return size;
    }
    int sync() override { return ++flushes, 0; }

    std::size_t m_capacity;
};

}  // namespace kinesta
