#include "letters.h"

#include <string_view>

namespace {

struct Piece {
  std::string_view text;
  char look = ' ';  // b, i, u, c: bold, italic, underlined, in colour
};

// One paragraph.
constexpr Piece kPieces[] = {{"Thank you for letting us measure the windows of your house. For the ", ' '},
                             {"bay of the drawing room", 'b'},
                             {" we suggest interlined curtains on a corded track, with a pelmet of the same "
                              "fabric and a contrast edge; "
                              "for the bedrooms ",
                              ' '},
                             {"blackout roller blinds", 'i'},
                             {" would do very well. The price includes making, fitting and ", ' '},
                             {"all taxes", 'u'},
                             {", and it holds for thirty days. A deposit of half is asked for with the "
                              "order, the rest when the work is "
                              "done. ",
                              ' '},
                             {"Please ring us with any question", 'c'},
                             {" before the fabric is cut, for then it cannot be changed any more."}};

struct Look {
  char look;
  std::string_view rtf;
  std::string_view html_begin;
  std::string_view html_end;
};

constexpr Look kLooks[] = {{' ', "", "", ""},
                           {'b', "\\b", "<b>", "</b>"},
                           {'i', "\\i", "<i>", "</i>"},
                           {'u', "\\ul", "<u>", "</u>"},
                           {'c', "\\cf1", "<font color=\"#ff0000\">", "</font>"}};

const Look& LookOf(char look) {
  for (const Look& each : kLooks) {
    if (each.look == look) return each;
  }
  return kLooks[0];
}

}  // namespace

Letters MakeLetters(std::size_t rtf_bytes) {
  Letters letters;
  letters.rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;\\red255\\green0\\blue0;}\n";
  letters.html = "<html><body style=\"font-family:Arial; font-size:12pt\">\n";
  while (letters.rtf.size() < rtf_bytes) {
    letters.rtf += "\\pard\\qj\\sa120\\f0\\fs24 ";
    letters.html += "<p align=\"justify\" style=\"margin-bottom:6pt\">";
    for (const Piece& piece : kPieces) {
      const Look& look = LookOf(piece.look);
      if (look.rtf.empty()) {
        letters.rtf += piece.text;
      } else {
        letters.rtf.append("{").append(look.rtf).append(" ").append(piece.text).append("}");
      }
      letters.html.append(look.html_begin).append(piece.text).append(look.html_end);
    }
    letters.rtf += "\\par\n";
    letters.html += "</p>\n";
  }
  letters.rtf += "}";
  letters.html += "</body></html>";
  return letters;
}
