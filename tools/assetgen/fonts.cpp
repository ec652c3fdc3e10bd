// Bitmap fonts rendered from DejaVu Sans Mono Bold into the game's cells.
// The text set (less its leading and trailing blank) gives the cells:
// cell n is the character at place n + 2 of " 1234567890...&/ ".
#include <cmath>
#include <string>
#include <vector>

#include "families.h"

namespace assetgen {
namespace {

// One glyph per cell, in cell order; "$" stands for the credit sign.
constexpr char kCells[] = "1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ.,?!:-()%$+&/";
constexpr char kLedCells[] = "1234567890ABCDEFGJLMNOPRSTUVY";

// Coverage 0..1 of a glyph drawn to fit a w x h cell.
std::vector<double> GlyphMask(char ch, int w, int h) {
  cairo_surface_t* s = cairo_image_surface_create(CAIRO_FORMAT_A8, w, h);
  cairo_t* cr = cairo_create(s);
  cairo_font_options_t* fo = cairo_font_options_create();
  cairo_font_options_set_antialias(fo, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(fo, CAIRO_HINT_STYLE_FULL);
  cairo_set_font_options(cr, fo);
  cairo_font_options_destroy(fo);
  cairo_select_font_face(cr, "DejaVu Sans Mono", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
  // Capitals fill the cell but its last row and column, which space the text.
  const double cap = h - (h >= 10 ? 3 : h >= 8 ? 2 : 1);
  const double size = cap / 0.73;
  cairo_set_font_size(cr, size);
  cairo_set_source_rgba(cr, 1, 1, 1, 1);
  const double baseline = cap;
  if (ch == '$') {
    // The credit sign: a C crossed by two bars.
    cairo_text_extents_t e;
    cairo_text_extents(cr, "C", &e);
    const double x = (w - 1 - e.x_advance) / 2;
    cairo_move_to(cr, x, baseline);
    cairo_show_text(cr, "C");
    const double lw = std::max(1.0, h / 9.0);
    cairo_set_line_width(cr, lw);
    for (double f : {0.38, 0.62}) {
      const double yy = std::round(cap * f) + (lw == 1.0 ? 0.5 : 0);
      cairo_move_to(cr, 0, yy);
      cairo_line_to(cr, w - 1.5, yy);
    }
    cairo_stroke(cr);
  } else {
    const char str[2] = {ch, 0};
    cairo_text_extents_t e;
    cairo_text_extents(cr, str, &e);
    const double x = std::floor((w - 1 - e.x_advance) / 2 + 0.5);
    cairo_move_to(cr, x, baseline);
    cairo_show_text(cr, str);
  }
  cairo_surface_flush(s);
  std::vector<double> m(size_t(w) * h);
  const unsigned char* d = cairo_image_surface_get_data(s);
  const int stride = cairo_image_surface_get_stride(s);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) m[size_t(y) * w + x] = d[y * stride + x] / 255.0;
  cairo_destroy(cr);
  cairo_surface_destroy(s);
  return m;
}

// Draws a glyph as solid pixels where its coverage passes a threshold, with
// a slightly darker rim for the half-covered ones.
void PutGlyph(Canvas& cv, const std::vector<double>& m, int x0, int y0, int w, int h, Rgb c) {
  for (int y = 0; y < h; ++y) {
    for (int x = 0; x < w; ++x) {
      const double a = m[size_t(y) * w + x];
      if (a >= 0.55) cv.Put(x0 + x, y0 + y, c);
      else if (a >= 0.3) cv.Put(x0 + x, y0 + y, Scale(c, 0.6));
    }
  }
}

// Cells side by side, one band per colour under each other.
void Bands(Canvas& cv, const char* cells, int w, int h, const std::vector<Rgb>& colours) {
  const int n = int(std::string(cells).size());
  for (int i = 0; i < n; ++i) {
    const auto m = GlyphMask(cells[i], w, h);
    for (size_t b = 0; b < colours.size(); ++b) PutGlyph(cv, m, i * w, int(b) * h, w, h, colours[b]);
  }
  cv.Dirty();
}

}  // namespace

bool DrawFonts(const BitmapSpec& spec, Canvas& cv) {
  const std::string_view p = spec.path;
  if (p == "gfx/fonts/font_sml.bmp") {
    // Cell n at y = 8n; brightness b at x = 8b (0 draws nothing), the second
    // colour at x + 128.
    const Rgb first{0.62, 1.0, 0.95}, second = kAmber;
    for (int i = 0; i < 49; ++i) {
      const auto m = GlyphMask(kCells[i], 8, 8);
      for (int b = 1; b < 16; ++b) {
        const double k = 0.15 + 0.85 * b / 15.0;
        PutGlyph(cv, m, 8 * b, 8 * i, 8, 8, Scale(first, k));
        PutGlyph(cv, m, 128 + 8 * b, 8 * i, 8, 8, Scale(second, k));
      }
    }
    cv.Dirty();
    return true;
  }
  if (p == "gfx/fonts/font_vsml.bmp" || p == "gfx/fonts/add_font.bmp") {
    // Bands: 0 normal, 6 active or selected, 12 pirate, spent or greyed,
    // 18 under the cursor, 24 list rows.
    Bands(cv, kCells, 6, 6, {{0.70, 0.95, 1.0}, kAmber, {0.95, 0.35, 0.30}, kWhite, {0.45, 0.95, 0.50}});
    return true;
  }
  if (p == "gfx/fonts/led.bmp") {
    Bands(cv, kLedCells, 8, 11, {{1.0, 0.45, 0.15}});
    return true;
  }
  if (p == "gfx/station/a_fonts/ocr.bmp") {
    // Rows of 8: fade states 1..3 of the plain text at 0, 8, 16 (24 as 16);
    // the bright text at 32..56; the chosen text at 64..80 and the greyed
    // text at 88 (offset 72 fades in through the chosen colour).
    const Rgb plain{0.35, 0.95, 0.55}, bright{0.85, 1.0, 0.85}, chosen = kAmber, grey{0.45, 0.48, 0.50};
    Bands(cv, kCells, 8, 8,
          {Scale(plain, 0.35), Scale(plain, 0.65), plain, plain, Scale(bright, 0.4), Scale(bright, 0.7), bright, bright,
           Scale(chosen, 0.45), Mix(Scale(chosen, 0.7), grey, 0.5), chosen, grey});
    return true;
  }
  if (p == "gfx/station/a_fonts/stat_font_imp.bmp") {
    Bands(cv, kCells, 12, 14, {kAmber, {1.0, 0.95, 0.75}});
    return true;
  }
  return false;
}

}  // namespace assetgen
