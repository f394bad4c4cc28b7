#include "tests/record_store/Watched_Disk.h"

#include <sqlite3.h>

#include <cstddef>
#include <cstring>
#include <new>

namespace Watched_Disk {
namespace {

int writes = 0;
int syncs = 0;
Fault fault = Fault::None;
int operations_left = 0;

sqlite3_vfs* real_disk = nullptr;

// A file of ours, with the real one right behind it.
struct File {
  sqlite3_file base;
  sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* Real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->Real(); }

bool Breaks_Now() { return operations_left-- <= 0; }

int Write(sqlite3_file* file, const void* data, int length, sqlite3_int64 at) {
  ++writes;
  if (fault == Fault::Full && Breaks_Now()) return SQLITE_FULL;
  if (fault == Fault::Write_Fails && Breaks_Now()) return SQLITE_IOERR_WRITE;
  return Real(file)->pMethods->xWrite(Real(file), data, length, at);
}

int Sync(sqlite3_file* file, int flags) {
  ++syncs;
  if (fault == Fault::Sync_Fails && Breaks_Now()) return SQLITE_IOERR_FSYNC;
  return Real(file)->pMethods->xSync(Real(file), flags);
}

int Close(sqlite3_file* file) { return Real(file)->pMethods->xClose(Real(file)); }
int Read(sqlite3_file* file, void* data, int length, sqlite3_int64 at) {
  return Real(file)->pMethods->xRead(Real(file), data, length, at);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  return Real(file)->pMethods->xTruncate(Real(file), size);
}
int File_Size(sqlite3_file* file, sqlite3_int64* size) {
  return Real(file)->pMethods->xFileSize(Real(file), size);
}
int Lock(sqlite3_file* file, int level) { return Real(file)->pMethods->xLock(Real(file), level); }
int Unlock(sqlite3_file* file, int level) {
  return Real(file)->pMethods->xUnlock(Real(file), level);
}
int Check_Lock(sqlite3_file* file, int* reserved) {
  return Real(file)->pMethods->xCheckReservedLock(Real(file), reserved);
}
int Control(sqlite3_file* file, int operation, void* argument) {
  return Real(file)->pMethods->xFileControl(Real(file), operation, argument);
}
int Sector_Size(sqlite3_file* file) { return Real(file)->pMethods->xSectorSize(Real(file)); }
int Characteristics(sqlite3_file* file) {
  return Real(file)->pMethods->xDeviceCharacteristics(Real(file));
}

const sqlite3_io_methods& Methods() {
  static const sqlite3_io_methods methods = [] {
    sqlite3_io_methods made{};
    made.iVersion = 1;
    made.xClose = Close;
    made.xRead = Read;
    made.xWrite = Write;
    made.xTruncate = Truncate;
    made.xSync = Sync;
    made.xFileSize = File_Size;
    made.xLock = Lock;
    made.xUnlock = Unlock;
    made.xCheckReservedLock = Check_Lock;
    made.xFileControl = Control;
    made.xSectorSize = Sector_Size;
    made.xDeviceCharacteristics = Characteristics;
    return made;
  }();
  return methods;
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flags_out) {
  const int result = real_disk->xOpen(real_disk, name, Real(file), flags, flags_out);
  file->pMethods = result == SQLITE_OK ? &Methods() : nullptr;
  return result;
}

}  // namespace

void Install() {
  if (real_disk != nullptr) return;
  real_disk = sqlite3_vfs_find(nullptr);
  static sqlite3_vfs watched = *real_disk;
  watched.zName = "watched";
  watched.szOsFile = static_cast<int>(sizeof(File)) + real_disk->szOsFile;
  watched.xOpen = Open;
  sqlite3_vfs_register(&watched, 1);
}

void Break(Fault what, int operations) {
  fault = what;
  operations_left = operations;
}

void Repair() { fault = Fault::None; }

void Count_From_Zero() { writes = syncs = 0; }
int Syncs() { return syncs; }
int Writes() { return writes; }

}  // namespace Watched_Disk
