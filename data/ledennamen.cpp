#include "data/ledennamen.h"

#include <utility>

namespace lauwerkrans {

bool LedenNamen::zet(std::int64_t nummer, std::string naam) {
    if (nummer < 0 || nummer > hoogste_) return false;
    namen_[nummer] = std::move(naam);
    return true;
}

const std::string& LedenNamen::naam(std::int64_t nummer) const {
    static const std::string leeg;
    const auto gevonden = namen_.find(nummer);
    return gevonden == namen_.end() ? leeg : gevonden->second;
}

std::string LedenNamen::paar(std::int64_t lid1, std::int64_t lid2) const {
    return naam(lid1) + " - " + naam(lid2);
}

} // namespace lauwerkrans
