#include "shell/save_text.h"

#include <charconv>
#include <cmath>

namespace lf {

// --- Writer ---

void SaveWriter::Separate() {
  if (lineStarted_) text_ += ',';
  lineStarted_ = true;
}

void SaveWriter::I16(std::int16_t v) {
  Separate();
  text_ += std::to_string(v);
}

void SaveWriter::L32(std::int32_t v) {
  Separate();
  text_ += std::to_string(v);
}

// The shortest text that reads back to the same double: 0.1 stays "0.1".
void SaveWriter::R(double v) {
  Separate();
  char buf[32];
  const auto res = std::to_chars(buf, buf + sizeof buf, v);
  text_.append(buf, res.ptr);
}

void SaveWriter::F(Flag v) {
  Separate();
  text_ += v != 0 ? "#TRUE#" : "#FALSE#";
}

// The format has no escapes: a double quote inside a string would end it
// early and a line end would split the record, so both are replaced.
void SaveWriter::S(const std::string& v) {
  Separate();
  text_ += '"';
  for (const char c : v) {
    if (c == '"')
      text_ += '\'';
    else if (c == '\r' || c == '\n')
      text_ += ' ';
    else
      text_ += c;
  }
  text_ += '"';
}

void SaveWriter::End() {
  text_ += "\r\n";
  lineStarted_ = false;
}

// --- Reader ---

namespace {
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }
}  // namespace

SaveReader::Field SaveReader::Next() {
  if (pos_ >= text_.size()) throw SaveFormatError("ENDS TOO EARLY");
  while (pos_ < text_.size() && IsBlank(text_[pos_])) ++pos_;
  Field f;
  if (pos_ < text_.size() && text_[pos_] == '"') {
    // A quoted field runs to the closing quote, or to the line's end when
    // the quote is never closed; what follows it up to the comma is dropped.
    const std::size_t start = ++pos_;
    while (pos_ < text_.size() && text_[pos_] != '"' && !IsLineEnd(text_[pos_])) ++pos_;
    f.text = text_.substr(start, pos_ - start);
    f.quoted = true;
    while (pos_ < text_.size() && text_[pos_] != ',' && !IsLineEnd(text_[pos_])) ++pos_;
  } else {
    const std::size_t start = pos_;
    while (pos_ < text_.size() && text_[pos_] != ',' && !IsLineEnd(text_[pos_])) ++pos_;
    std::size_t end = pos_;
    while (end > start && IsBlank(text_[end - 1])) --end;
    f.text = text_.substr(start, end - start);
  }
  if (pos_ < text_.size()) {
    if (text_[pos_] == ',') {
      ++pos_;
    } else if (text_[pos_] == '\r') {
      ++pos_;
      if (pos_ < text_.size() && text_[pos_] == '\n') ++pos_;
    } else if (text_[pos_] == '\n') {
      ++pos_;
    }
  }
  ++fieldsRead_;
  return f;
}

double SaveReader::Number(const Field& f) {
  if (f.quoted) throw SaveFormatError("HAS TEXT FOR A NUMBER");
  if (f.text.empty()) return 0;
  double v = 0;
  const char* first = f.text.data();
  const char* last = first + f.text.size();
  if (*first == '+') ++first;
  const auto res = std::from_chars(first, last, v);
  if (res.ec != std::errc{} || res.ptr != last || !std::isfinite(v))
    throw SaveFormatError("HAS A BAD NUMBER");
  return v;
}

void SaveReader::I16(std::int16_t& v) {
  const Field f = Next();
  if (!Assign(v, Number(f))) throw SaveFormatError("HAS A NUMBER TOO LARGE");
}

void SaveReader::L32(std::int32_t& v) {
  const Field f = Next();
  if (!Assign(v, Number(f))) throw SaveFormatError("HAS A NUMBER TOO LARGE");
}

void SaveReader::R(double& v) { v = Number(Next()); }

void SaveReader::F(Flag& v) {
  const Field f = Next();
  if (!f.quoted && f.text == "#TRUE#") {
    v = True;
  } else if (!f.quoted && f.text == "#FALSE#") {
    v = False;
  } else if (!Assign(v, Number(f))) {
    throw SaveFormatError("HAS A NUMBER TOO LARGE");
  }
}

void SaveReader::S(std::string& v) { v = std::string(Next().text); }

}  // namespace lf
