#pragma once

#include <string>

namespace tarvane {

class Connection;

// The statements that mark a file as one of this program and version.
std::string VersionMarksSql();

// Holds the file of `connection` against this program's version. An older one is brought up, in one
// transaction, after a copy of it beside it. Where that can't be done, but its tables hold all that this
// program asks for, it is open for reading only from now on. Returns what the worker is to be told of it, ""
// where the file is of this version, or holds no table of this program yet.
//
// Faults for a file of a newer version or of another program, for an older one that can't be brought up and
// can't be used, and where another program holds it.
std::string BringUp(Connection& connection);

}  // namespace tarvane
