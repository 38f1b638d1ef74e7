#pragma once

#include <string_view>

// The writer's own comment lines around what it draws. Nothing reads them back, and a reader of the file
// takes them for comments.
namespace tarvane::pdf {

struct Marker {
  std::string_view open;
  std::string_view close;
};

inline constexpr Marker kObjectMarker = {"%DEBUT_OBJ/%", "%FIN_OBJ/%"};
inline constexpr Marker kTextMarker = {"%DEBUT_TEXT/%", "%FIN_TEXT/%"};
inline constexpr Marker kCellMarker = {"%DEBUT_CELL/%", "%FIN_CELL/%"};
inline constexpr Marker kRectangleMarker = {"%DEBUT_RECT/%", "%FIN_RECT/%"};
inline constexpr Marker kPolygonMarker = {"%DEBUT_POLY/%", "%FIN_POLY/%"};
inline constexpr Marker kLineMarker = {"%DEBUT_LN/%", "%FIN_LN/%"};
inline constexpr Marker kHorizontalMarker = {"%DEBUT_LNH/%", "%FIN_LNH/%"};
inline constexpr Marker kVerticalMarker = {"%DEBUT_LNV/%", "%FIN_LNV/%"};
inline constexpr Marker kLinkMarker = {"%DEBUT_LINK/%", "%FIN_LINK/%"};
inline constexpr Marker kImageMarker = {"%DEBUT_IMAGE/%", "%FIN_IMAGE/%"};

}  // namespace tarvane::pdf
