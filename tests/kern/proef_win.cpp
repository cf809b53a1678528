#include "proef.h"

#include <stdexcept>

#include <windows.h>

namespace lauwerkrans::proef {

namespace {

/// Opens a file or a folder in such a way that nobody else can.
std::shared_ptr<void> HoudBezet(const std::filesystem::path& pad, DWORD toegang, DWORD wijze,
                                DWORD vlaggen) {
    const HANDLE greep = ::CreateFileW(pad.c_str(), toegang, 0, nullptr, wijze, vlaggen, nullptr);
    if (greep == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot hold " + pad.string());
    return {greep, [](void* open) { ::CloseHandle(open); }};
}

} // namespace

const std::errc onleesbaarFout = std::errc::device_or_resource_busy;

std::shared_ptr<void> MaakOnleesbaar(const std::filesystem::path& pad) {
    return HoudBezet(pad, GENERIC_WRITE, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL);
}

std::shared_ptr<void> MaakOnleesbareMap(const std::filesystem::path& pad) {
    std::filesystem::create_directory(pad);
    return HoudBezet(pad, FILE_LIST_DIRECTORY, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
}

} // namespace lauwerkrans::proef
