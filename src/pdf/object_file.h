#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::pdf {

// The last stage: numbered objects on their way into the file, and the table of where they are.
//
// The table is deliberately short. What is recorded for an object is the sum of the lengths handed over
// before it; the line end that closes each write, and the one behind the header, aren't counted, so that
// entry k falls short by 2 for each earlier write. Viewers rebuild the table; the files have always been so
// and stay so.
//
// A path that can't be written is passed over: the writes then have no effect.
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
  void Begin();
  int NextNumber() { return ++last_number_; }
  int last_number() const { return last_number_; }
  // Writes the object of the next number in turn. Its bytes may come in pieces.
  void Write(std::initializer_list<std::string_view> pieces);
  // Writes the cross-reference table, the trailer and the last line, and closes the file.
  void Finish(int catalog);

 private:
  void Record(std::initializer_list<std::string_view> pieces);
  void Put(std::string_view bytes);
  void Flush();

  std::ofstream file_;
  std::string pending_;  // bytes on their way to the file
  int last_number_ = 0;
  int64_t running_offset_ = 0;
  std::vector<int64_t> offsets_;
};

}  // namespace tarvane::pdf
