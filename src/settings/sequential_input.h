// Reading a text file line by line the way the classic runtime's `Line Input #` and `Input #`
// read it, which is what the positional settings files were written for. Nothing here faults:
// a failed read leaves the target as it was and records the error as pending, and the caller
// decides later what a pending error means (the settings reader falls back to factory values).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesk {

class SequentialInput {
 public:
  // The runtime's error numbers that reading can leave pending.
  static constexpr int kOverflow = 6;
  static constexpr int kTypeMismatch = 13;
  static constexpr int kPastEnd = 62;

  explicit SequentialInput(std::string content) : m_text(std::move(content)) {}

  // EOF(): nothing is left to read.
  bool atEnd() const { return m_pos >= m_text.size(); }

  // Line Input #: the next line without its end (CR LF, LF or a lone CR). At the end of the file
  // nothing is read and "input past end of file" is left pending.
  std::optional<std::string> lineInput();

  // Input # of `count` number fields from the next line. A field ends at a blank, a comma or the
  // line's end; the rest of the line is skipped. Fields missing from the line come back empty.
  std::optional<std::vector<std::string>> numberFields(std::size_t count);

  // Input # of one text field from the next line: leading and trailing blanks dropped, the field
  // ends at a comma (the rest of the line is skipped), a quoted field is taken without its quotes.
  std::optional<std::string> textField();

  // Converts a number field into a variable of that width, as Input # assigns it: an empty
  // field is 0; a field that is not a number leaves the variable and makes a type mismatch
  // pending; a number too large for the variable leaves it and makes an overflow pending.
  void assign(const std::string& field, int16_t& out);
  void assign(const std::string& field, int32_t& out);
  void assign(const std::string& field, float& out);

  // The last error met, 0 when every read so far went well.
  int pendingError() const { return m_error; }

  // The numeric value of an Input # number field, or nothing when the field is not a number.
  static std::optional<double> parseNumber(std::string_view field);

 private:
  std::optional<std::string_view> nextLine();
  std::optional<double> numberOf(const std::string& field);

  std::string m_text;
  std::size_t m_pos = 0;
  int m_error = 0;
};

}  // namespace tesk
