#pragma once

namespace brindlex {

/// Gives the memory back that the tables of the linked libraries take (names, relocations), which
/// are read at the start and hardly ever after it. They are unwritten parts of files: what is
/// needed of them once more is read again from there, a few microseconds for 64 kB.
void releaseLinkerTables();

} // namespace brindlex
