#include "store/faulty_disk.h"

#include <signal.h>
#include <sqlite3.h>
#include <unistd.h>

#include <new>

namespace padral::test {

struct FaultyDisk::State {
    sqlite3_vfs vfs{};
    sqlite3_vfs* real = nullptr;
    DiskFault fault = DiskFault::None;
    int at = 0;
    int steps = 0;

    // The engine's code for the fault of the next step; SQLITE_OK lets it through.
    int Step() {
        if (++steps < at) return SQLITE_OK;
        switch (fault) {
            case DiskFault::Kill:
                kill(getpid(), SIGKILL);
                break;
            case DiskFault::Full:
                return SQLITE_FULL;
            case DiskFault::Error:
                return SQLITE_IOERR;
            case DiskFault::None:
                break;
        }
        return SQLITE_OK;
    }

    static State& Of(sqlite3_vfs* vfs) { return *static_cast<State*>(vfs->pAppData); }
    static int Open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* out);
    static int Delete(sqlite3_vfs* vfs, const char* name, int sync) {
        const int code = Of(vfs).Step();
        return code == SQLITE_OK ? Of(vfs).real->xDelete(Of(vfs).real, name, sync) : code;
    }
};

namespace {

// Behind it in the same memory lies the file of the real disk.
template <class State>
struct Opened : sqlite3_file {
    State* disk;
};

template <class State>
sqlite3_file* realFile(sqlite3_file* file) {
    return reinterpret_cast<sqlite3_file*>(static_cast<Opened<State>*>(file) + 1);
}

template <class State>
struct Methods {
    using F = sqlite3_file;
    static F* Real(F* f) { return realFile<State>(f); }
    static int Step(F* f) { return static_cast<Opened<State>*>(f)->disk->Step(); }

    static int Close(F* f) { return Real(f)->pMethods->xClose(Real(f)); }
    static int Read(F* f, void* to, int size, sqlite3_int64 at) {
        return Real(f)->pMethods->xRead(Real(f), to, size, at);
    }
    static int Write(F* f, const void* from, int size, sqlite3_int64 at) {
        const int code = Step(f);
        return code == SQLITE_OK ? Real(f)->pMethods->xWrite(Real(f), from, size, at) : code;
    }
    static int Truncate(F* f, sqlite3_int64 size) {
        const int code = Step(f);
        return code == SQLITE_OK ? Real(f)->pMethods->xTruncate(Real(f), size) : code;
    }
    static int Sync(F* f, int flags) {
        const int code = Step(f);
        return code == SQLITE_OK ? Real(f)->pMethods->xSync(Real(f), flags) : code;
    }
    static int Size(F* f, sqlite3_int64* size) {
        return Real(f)->pMethods->xFileSize(Real(f), size);
    }
    static int Lock(F* f, int level) { return Real(f)->pMethods->xLock(Real(f), level); }
    static int Unlock(F* f, int level) { return Real(f)->pMethods->xUnlock(Real(f), level); }
    static int Reserved(F* f, int* out) {
        return Real(f)->pMethods->xCheckReservedLock(Real(f), out);
    }
    static int Control(F* f, int op, void* arg) {
        return Real(f)->pMethods->xFileControl(Real(f), op, arg);
    }
    static int Sector(F* f) { return Real(f)->pMethods->xSectorSize(Real(f)); }
    static int Device(F* f) { return Real(f)->pMethods->xDeviceCharacteristics(Real(f)); }
};

}  // namespace

int FaultyDisk::State::Open(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags,
                            int* out) {
    using M = Methods<State>;
    static const sqlite3_io_methods methods{
        1,       M::Close,  M::Read,     M::Write,   M::Truncate, M::Sync,   M::Size,
        M::Lock, M::Unlock, M::Reserved, M::Control, M::Sector,   M::Device, nullptr,
        nullptr, nullptr,   nullptr,     nullptr,    nullptr};
    auto* opened = new (file) Opened<State>{};
    opened->disk = &Of(vfs);
    sqlite3_vfs* real = Of(vfs).real;
    const int code = real->xOpen(real, name, realFile<State>(file), flags, out);
    opened->pMethods = code == SQLITE_OK ? &methods : nullptr;
    return code;
}

FaultyDisk::FaultyDisk(DiskFault fault, int step) : state_(std::make_unique<State>()) {
    state_->real = sqlite3_vfs_find(nullptr);
    state_->fault = fault;
    state_->at = step;
    sqlite3_vfs& vfs = state_->vfs;
    vfs = *state_->real;
    vfs.szOsFile = static_cast<int>(sizeof(Opened<State>)) + state_->real->szOsFile;
    vfs.zName = "faulty disk";
    vfs.pAppData = state_.get();
    vfs.pNext = nullptr;
    vfs.xOpen = State::Open;
    vfs.xDelete = State::Delete;
    sqlite3_vfs_register(&vfs, 1);
}

FaultyDisk::~FaultyDisk() {
    sqlite3_vfs_unregister(&state_->vfs);
    sqlite3_vfs_register(state_->real, 1);
}

int FaultyDisk::Steps() const { return state_->steps; }

}  // namespace padral::test
