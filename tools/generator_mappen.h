// The folders of the suite, and which file stands where.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "tools/generator_suite.h"

namespace lauwerkrans::generator {

/// The folder of `map` in which the competitions lie.
[[nodiscard]] std::filesystem::path CompetitiesMap(const std::filesystem::path& map);

/// The absolute path of a folder as Mappen.ini gives it: UTF-8, the system's own separators, none
/// at the end.
[[nodiscard]] std::string VolledigPad(const std::filesystem::path& map);

/// How a folder or file of a competition is written; gets its plain name.
using NaamVorm = std::string (*)(const std::string& naam);

/// Writes one competition's files; makes the folders that they need. Rounds and sessions count
/// from 1. Errors as `SchrijfTekst` and std::filesystem give them.
class CompetitieSchrijver {
public:
    /// `map` is the suite's folder, see `CompetitiesMap`. `vorm` outlives this object.
    CompetitieSchrijver(const std::filesystem::path& map, const CompetitieVorm& vorm,
                        NaamVorm naamVorm);

    void compData(std::span<const int> tafels) const;
    void ronde(int ronde) const;
    void bums(int ronde, std::span<const BumRegel> regels) const;

    /// A session without lines is one not yet played: its folder stays empty.
    void zitting(int ronde, int zitting, std::span<const ScoreRegel> regels) const;

private:
    [[nodiscard]] std::filesystem::path rondeMap(int ronde) const;

    std::filesystem::path map_;
    const CompetitieVorm& vorm_;
    NaamVorm naamVorm_;
};

/// Writes Mappen.ini and the members file. `leden` stand in the order of their numbers.
void SchrijfSuite(const std::filesystem::path& map, const Mappen& mappen, int hoogste,
                  std::span<const Lid> leden);

} // namespace lauwerkrans::generator
