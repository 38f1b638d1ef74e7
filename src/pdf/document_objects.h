#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pdf/jpeg.h"
#include "pdf/object_file.h"
#include "text/day.h"

// The objects of a file that aren't a page's stream: what goes into them, and their writing. Places and sizes
// here are points, from the bottom left of the page.
namespace tarvane::pdf {

// Any of the texts may be empty.
struct Information {
  std::string producer;
  std::string author;
  std::string creator;
  std::string keywords;
  std::string subject;
  std::string title;
};

struct Area {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;
};

struct Link {
  Area area;
  std::string address;
};

struct Page {
  int width = 0;  // with the height 0 as well: no size of its own
  int height = 0;
  bool landscape = false;
  std::vector<Link> links;
};

// A JPEG file as it is, or pixels that were compressed already (zlib).
struct Image {
  JpegInfo info;
  std::string bytes;
  // Of compressed pixels what the file says of them: "/ColorSpace ...", and "/DecodeParms ..." where there
  // are any. Empty: a JPEG.
  std::string pixels;
};

struct Bookmark {
  std::string title;
  int level = 0;  // 0 is the outermost
  int page = 0;   // from 1
  double y = 0;
};

// How a viewer is to open the file.
struct ViewSettings {
  enum Zoom { kFullPage, kFullWidth, kRealSize, kDefault, kPercentage };
  Zoom zoom = kFullPage;
  double percentage = 100;
  int layout = 0;
  bool use_thumbs = false;
  bool use_outlines = false;
  std::optional<int> preferences;
};

// Everything that the end of a file is written from.
struct DocumentParts {
  const std::vector<std::string>& fonts;
  const std::vector<Image>& images;
  const std::vector<Page>& pages;
  const std::vector<Bookmark>& bookmarks;
  const ViewSettings& view;
  bool strict = false;  // nothing in it that a reader has to repair or pass over
};

// Object 1, behind the header.
void WriteInformation(ObjectFile& file, const Information& information, const DateTime& created, bool strict);
// Fonts, pages, resources, images, page objects, outlines and catalog, the table and the end of the file.
void WriteEnd(ObjectFile& file, const DocumentParts& parts);

}  // namespace tarvane::pdf
