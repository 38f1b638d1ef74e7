#include <cairo-pdf.h>
#include <cairo.h>

#include "peers/peer.h"

namespace {

// Cairo embeds the font and compresses; there is no way to keep it from either.
void WritePages(const std::string& path, int pages) {
  cairo_surface_t* surface = cairo_pdf_surface_create(path.c_str(), 595, 842);
  cairo_t* context = cairo_create(surface);
  cairo_select_font_face(context, "Helvetica", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, 10);
  for (int page = 0; page < pages; ++page) {
    for (int line = 0; line < kLines; ++line) {
      cairo_move_to(context, 40, 50 + line * 15);
      cairo_show_text(context, LineText(page, line).c_str());
    }
    cairo_show_page(context);
  }
  cairo_destroy(context);
  cairo_surface_finish(surface);
  cairo_surface_destroy(surface);
}

const bool kAdded = AddPeer({"cairo", WritePages, nullptr});

}  // namespace
