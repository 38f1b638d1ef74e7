#include "store/make_shop/make_shop.h"

#include <array>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "store/connection.h"
#include "store/data_files.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "text/fault.h"

namespace tarvane {

namespace {

constexpr std::array kFirstNames = {"Ada",     "Bernard", "Céline", "Dorothy", "Edmund",  "Flora",
                                    "Gilbert", "Hazel",   "Ivor",   "Jocelyn", "Kenneth", "Lottie",
                                    "Mabel",   "Norris",  "Olive",  "Percy",   "Queenie", "Rupert",
                                    "Sybil",   "Tobias",  "Una",    "Victor",  "Wilfred", "Yvonne"};
constexpr std::array kNameHeads = {"Smith", "Ash",  "Black", "Corn",  "Dun",  "East",  "Fen",
                                   "Green", "Hart", "Ivy",   "Kings", "Lang", "Mill",  "North",
                                   "Oak",   "Pen",  "Quill", "Rose",  "Stan", "Thorn", "Under",
                                   "Vale",  "West", "York",  "Zeal",  "Öst"};
constexpr std::array kNameTails = {"",      "er",  "ford", "field", "ham",  "ley",   "man",  "more",
                                   "ridge", "son", "ton",  "well",  "wood", "worth", "bury", "croft"};
constexpr std::array kTowns = {"Little Marring", "Ashcombe Green", "Port Ellery",
                               "Nether Wick",    "Holmbridge",     "Saltmere"};
constexpr std::array kSalesPersons = {"Margaret Finch", "Tom Oldacre", "Priya Lall"};

class Invention {
 public:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  template <typename List>
  std::string OneOf(const List& list) {
    return list[Below(list.size())];
  }

  std::string Digits(int count) {
    std::string digits;
    for (int i = 0; i < count; ++i) digits += static_cast<char>('0' + Below(10));
    return digits;
  }

  std::string Date() {
    std::string date = "00/00/24";
    date[1] = static_cast<char>('1' + Below(9));
    date[4] = static_cast<char>('1' + Below(9));
    return date;
  }

  std::string Money() { return std::to_string(20 + Below(900)) + "." + Digits(2); }

  std::string Letters(int count) {
    std::string letters;
    for (int i = 0; i < count; ++i) letters += static_cast<char>('A' + Below(26));
    return letters;
  }

  // A curtain item as a room holds it.
  std::string ItemLine(const std::string& price) {
    std::string state;
    for (int field = 0; field < 65; ++field)
      state += (field % 3 == 0 ? Digits(2) + ".00" : std::string()) + "~";
    return price + "|Pencil pleat, pair, " + Digits(3) + " x " + Digits(3) + "|" + state +
           "|CurtainWizard|1|Pencil pleat " + "curtains, lined, pair~Track width " + Digits(3) +
           " inches, drop " + Digits(2) + " inches~Fabric " + Digits(1) + "." + Digits(2) +
           " metres~Tape, hooks and making up~Tie backs, pair~" + price + "~|\r\n";
  }

 private:
  std::minstd_rand random_{20240917};
};

using Job = std::vector<std::pair<std::string_view, std::string>>;

Job InventJob(Invention& invention, std::int64_t order) {
  const std::string price = invention.Money();
  return {
      {"Name",
       invention.OneOf(kNameHeads) + invention.OneOf(kNameTails) + " " + invention.OneOf(kFirstNames)},
      {"Telephone", "01" + invention.Digits(3) + " " + invention.Digits(6)},
      {"Mobile", "07" + invention.Digits(9)},
      {"Address", invention.Digits(2) + " High Street"},
      {"Town", invention.OneOf(kTowns)},
      {"PostCode",
       invention.Letters(2) + invention.Digits(1) + " " + invention.Digits(1) + invention.Letters(2)},
      {"Text10", "Pencil pleat curtains, lined, pair\r\n"},
      {"Text11", price},
      {"3Text", invention.Date()},
      {"4text", price},
      {"5Text", price},
      {"G-Total", price},
      {"Ext2", std::to_string(order)},
      {"Ext6", invention.OneOf(kSalesPersons)},
      {"1T(0)", invention.ItemLine(price)},
      {"5T(3)", "Measured by " + invention.OneOf(kFirstNames) + ", fitting to be arranged by telephone."},
      {"Completed", invention.Below(4) == 0 ? "0" : "1"},
  };
}

// The indexes are made anew behind the rows: that takes a tenth of the time.
std::vector<std::string> DropIndexes(Connection& connection) {
  std::vector<std::string> names;
  std::vector<std::string> statements;
  {
    Statement indexes = connection.Prepare(
        "SELECT name, sql FROM sqlite_schema WHERE type = 'index' AND tbl_name = 'TblBrindel' AND sql IS NOT "
        "NULL");
    while (indexes.Step()) {
      names.emplace_back(indexes.Text(0));
      statements.emplace_back(indexes.Text(1));
    }
  }
  for (const std::string& name : names) connection.Execute("DROP INDEX " + QuotedName(name));
  return statements;
}

void InsertJobs(Connection& connection, std::int64_t jobs) {
  Invention invention;
  std::string names;
  std::string marks;
  for (const auto& [column, value] : InventJob(invention, 0)) {
    names += (names.empty() ? "" : ", ") + QuotedName(column);
    marks += marks.empty() ? "?" : ", ?";
  }
  Statement insert = connection.Prepare("INSERT INTO TblBrindel (" + names + ") VALUES (" + marks + ")");
  for (std::int64_t i = 1; i <= jobs; ++i) {
    const Job job = InventJob(invention, i);
    int position = 0;
    for (const auto& [column, value] : job) insert.Bind(++position, value);
    insert.Run();
    insert.Reset();
  }
}

}  // namespace

void MakeShop(const std::filesystem::path& file, std::int64_t jobs) {
  {
    Database database(file, Database::Mode::kCreate);
    for (const TableDefinition& table : TableDefinitions()) {
      if (table.file == data_file::kJobs) CreateTable(database, table);
    }
    RowSet admin;
    admin.Open(database, "Admin");
    if (!admin.HasRow()) admin.AddNew();
    admin.SetValue("LastOrderNo", std::to_string(jobs));
    admin.Update();
  }
  Connection connection(file, Database::Mode::kExisting, "");
  connection.Execute("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-200000; BEGIN");
  const std::vector<std::string> indexes = DropIndexes(connection);
  InsertJobs(connection, jobs);
  for (const std::string& index : indexes) connection.Execute(index);
  connection.Execute("COMMIT");
}

}  // namespace tarvane
