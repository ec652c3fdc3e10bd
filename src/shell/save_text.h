// The text of a saved file: records of comma-separated fields, one record to
// a line, lines ended by CR LF. The writer builds a file's text field by
// field; the reader hands the fields back one after the other, across line
// ends, and converts each to the type its variable asks for.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "shell/numeric.h"

namespace lf {

// A field that is missing or does not convert to its variable's type.
struct SaveFormatError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class SaveWriter {
 public:
  void I16(std::int16_t v);
  void L32(std::int32_t v);
  void R(double v);
  void F(Flag v);
  void S(const std::string& v);
  // Ends the record.
  void End();
  // The file's text so far.
  const std::string& Text() const { return text_; }
  std::string Take() { return std::move(text_); }

 private:
  void Separate();
  std::string text_;
  bool lineStarted_ = false;
};

class SaveReader {
 public:
  explicit SaveReader(std::string_view text) : text_(text) {}
  void I16(std::int16_t& v);
  void L32(std::int32_t& v);
  // An empty field reads as 0.
  void R(double& v);
  // #TRUE# or #FALSE#; a number is taken as it stands.
  void F(Flag& v);
  void S(std::string& v);
  // Record ends carry no meaning for the reader: fields run on across lines.
  void End() {}
  // How many fields have been read.
  int FieldsRead() const { return fieldsRead_; }

 private:
  struct Field {
    std::string_view text;
    bool quoted = false;
  };
  Field Next();
  double Number(const Field& f);
  std::string_view text_;
  std::size_t pos_ = 0;
  int fieldsRead_ = 0;
};

}  // namespace lf
