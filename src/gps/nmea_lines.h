#pragma once

#include <cstddef>
#include <string_view>

namespace pinmora {

/// Walks over the lines of a text without copying it. Lines end with "\r\n", "\r" or "\n" and are
/// not trimmed; after a line end at the end of the text there is one more line, an empty one. An
/// empty text is one empty line.
class NmeaLines {
public:
    explicit NmeaLines(std::string_view text) : text_(text), newline_(text.find('\n')) {}

    /// Moves on to the next line, at first to the first one; false when there is none left.
    bool next();

    std::string_view line() const { return line_; }
    /// The number of the present line, from 0.
    std::size_t index() const { return count_ - 1; }
    /// How many lines have been walked over; all of them once next() has said false.
    std::size_t count() const { return count_; }
    bool isLast() const { return begin_ == std::string_view::npos; }

private:
    std::string_view text_;
    std::string_view line_;
    std::size_t begin_ = 0;   ///< of the next line; npos after the last
    std::size_t newline_ = 0; ///< the first "\n" at or after begin_; npos for none
    std::size_t count_ = 0;
};

} // namespace pinmora
