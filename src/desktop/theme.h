#pragma once

class QColor;
class QFont;
class QString;

namespace tarvane::desktop {

enum class ColourScheme { kSystem, kLight, kDark };

// How windows look: the colour scheme and the size of the text in points.
struct Theme {
  ColourScheme scheme = ColourScheme::kSystem;
  int text_size = kUsualTextSize;

  static constexpr int kUsualTextSize = 11;
  static constexpr int kSmallestText = 8;
  static constexpr int kLargestText = 28;
};

// From the worker's own settings, and back into them.
Theme LoadTheme();
void SaveTheme(const Theme& theme);

// "light", "dark" or "system"; false where it is none of them.
bool ParseScheme(const QString& text, ColourScheme& scheme);

// Style, palette and font of all windows, open ones as well.
void ApplyTheme(const Theme& theme);
Theme CurrentTheme();

// Distances follow the text: a quarter of a line's height each.
int Quarters(int count);
// The width of `count` digits.
int Digits(int count);

// Colours without a role of their own in the palette. Quiet texts (captions, units, hints) are its
// PlaceholderText, what stands out its Highlight; what asks for care is written in its LinkVisited.
QColor RuleColour();   // thin lines between groups
QColor WrongColour();  // the edge of a field whose text can't be taken
QColor StripColour();  // behind the totals

}  // namespace tarvane::desktop
