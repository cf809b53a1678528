#include "proef.h"

namespace lauwerkrans::proef {

const std::errc onleesbaarFout = std::errc::too_many_symbolic_link_levels;

std::shared_ptr<void> MaakOnleesbaar(const std::filesystem::path& pad) {
    std::filesystem::create_symlink(pad.filename(), pad);
    return nullptr;
}

std::shared_ptr<void> MaakOnleesbareMap(const std::filesystem::path& pad) {
    return MaakOnleesbaar(pad);
}

} // namespace lauwerkrans::proef
