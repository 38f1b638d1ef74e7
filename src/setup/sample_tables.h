#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// What the sample shop is made of. All people, towns and firms are invented; telephone numbers are of the
// ranges that are kept free for such.
namespace tarvane::setup {

struct SampleCustomer {
  std::string_view name;
  std::string_view company;
  std::string_view address;
  std::string_view town;
  std::string_view post_code;
  std::string_view email;
  std::string_view web_site;
  std::string_view notes;  // about the job
};

struct SampleLining {
  std::string_view name;  // blank: not needed
  std::string_view price;
};

struct SampleTieBacks {
  std::string_view size;  // blank: not needed
  std::string_view style;
  std::string_view price;  // for one
};

struct SampleTrim {
  std::string_view kind;  // "Border" or "Trimming"; blank: not needed
  std::string_view description;
  std::string_view name;
  std::string_view placement;  // the wizard's tick box
  bool by_widths;
  std::string_view border_size;  // inches
  std::string_view price;        // a metre
};

// One window as it is typed into the curtain wizard. Measures are inches or centimetres, by `inches`.
struct SampleWindow {
  std::string_view description;
  std::string_view style;
  bool inches;
  int track;  // varied a little from job to job
  std::string_view length;
  std::string_view fabric_width;
  std::string_view repeat;  // "0": plain fabric
  std::string_view fullness;
  bool round_up;
  std::string_view auto_measure;  // the wizard's option; blank: none
  std::string_view fabric;
  std::string_view fabric_price;
  std::string_view tape_price;
  SampleTieBacks tie_backs;
  SampleLining lining;
  bool lining_by_metres;
  SampleLining interlining;
  SampleTrim trim;
  std::string_view labour_price;
  std::string_view tie_back_labour;
  std::string_view extra_labour_text;  // blank: none
  std::string_view extra_labour;
  std::string_view vat_rate;  // blank: prices hold it already
};

struct SampleSingle {
  int quantity;
  std::string_view description;
  int pence;  // for one
};

// What a job gets from a catalogue.
struct SampleExtra {
  enum class Kind {
    kTemplate,         // an item of a room
    kProduct,          // a single item
    kAccessory,        // a single item
    kAccessoryInRoom,  // text of a room: one without items, which would go, and neither room 1 nor room 6
  };
  static constexpr std::size_t kLines = 3;

  int job;   // from 0
  int room;  // from 1; 0: none
  Kind kind;
  std::string_view name;  // in the catalogue
  int quantity;
  // Lines of a template as they read once they have been filled in, "Width (cm): 92"; blank: none.
  std::array<std::string_view, kLines> lines = {};
};

std::span<const SampleCustomer> SampleCustomers();
std::span<const SampleWindow> SampleWindows();
std::span<const SampleSingle> SampleSingles();
std::span<const SampleExtra> SampleExtras();

}  // namespace tarvane::setup
