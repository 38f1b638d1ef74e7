#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::pdf {

// The last stage: numbered objects on their way into the file, and the table of where they are.
//
// The table is deliberately short. An object's entry sums up what was handed over before it and leaves out
// the line ends that the file adds behind each write and behind the header: two bytes a write. Viewers
// rebuild the table; the files have always been so and stay so. A strict file counts all its bytes, says how
// many entries its table has, and bears bytes above 127 behind its header, which tell mailers that it isn't
// text.
//
// Where the path can't be written nothing happens, and written() says so.
class ObjectFile {
 public:
  ObjectFile() = default;
  ObjectFile(const ObjectFile&) = delete;
  ObjectFile& operator=(const ObjectFile&) = delete;
  ~ObjectFile() { Close(); }

  // Creates the file at once, empty.
  void Open(const std::string& path);
  void Close();
  // Forgets the objects and writes the header line.
  void Begin(bool strict);
  int NextNumber() { return ++last_number_; }
  int last_number() const { return last_number_; }
  // Adds the object whose turn it is. Its bytes may come in pieces.
  void Write(std::initializer_list<std::string_view> pieces);
  // Writes the cross-reference table, the trailer and the last line, and closes the file.
  void Finish(int catalog);
  // True once the file was finished and the system took every byte of it.
  bool written() const { return written_; }

 private:
  void Record(std::initializer_list<std::string_view> pieces);
  void Put(std::string_view bytes);
  void Flush();

  std::ofstream file_;
  std::string pending_;  // bytes on their way to the file
  int last_number_ = 0;
  bool strict_ = false;
  int64_t put_ = 0;              // bytes since the file was opened
  bool from_the_start_ = false;  // the header is the first of them
  bool written_ = false;
  int64_t running_offset_ = 0;
  std::vector<int64_t> offsets_;
};

}  // namespace tarvane::pdf
