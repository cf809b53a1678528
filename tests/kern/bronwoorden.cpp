#include "bronwoorden.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace lauwerkrans::berichten {

namespace {

bool IsNaamteken(char teken) {
    return teken == '_' || (teken >= '0' && teken <= '9') || (teken >= 'a' && teken <= 'z') ||
           (teken >= 'A' && teken <= 'Z');
}

char Opgelost(char teken) {
    switch (teken) {
    case 'r':
        return '\r';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    default:
        return teken;
    }
}

class Splitser {
public:
    explicit Splitser(std::string_view bron) : bron_(bron) {}

    Woorden splits() {
        while (plaats_ < bron_.size()) {
            if (begint("//")) {
                plaats_ = std::min(bron_.find('\n', plaats_), bron_.size());
            } else if (begint("/*")) {
                ga(bron_.find("*/", plaats_) + 2);
            } else if (bron_[plaats_] == '"') {
                tekst();
            } else if (bron_[plaats_] == '\'') {
                teken();
            } else if (IsNaamteken(bron_[plaats_])) {
                naam();
            } else {
                leesteken();
            }
        }
        return std::move(woorden_);
    }

private:
    [[nodiscard]] bool begint(std::string_view met) const {
        return bron_.substr(plaats_).starts_with(met);
    }

    void ga(std::size_t naar) {
        for (; plaats_ < std::min(naar, bron_.size()); ++plaats_) {
            if (bron_[plaats_] == '\n') ++regel_;
        }
    }

    void tekst() {
        std::string inhoud;
        for (++plaats_; plaats_ < bron_.size() && bron_[plaats_] != '"'; ++plaats_) {
            const bool ontsnapt = bron_[plaats_] == '\\' && plaats_ + 1 < bron_.size();
            inhoud += ontsnapt ? Opgelost(bron_[++plaats_]) : bron_[plaats_];
        }
        ++plaats_;
        if (!woorden_.empty() && woorden_.back().soort == Woord::Tekst) {
            woorden_.back().tekst += inhoud;
        } else {
            woorden_.push_back({Woord::Tekst, inhoud, regel_});
        }
    }

    void teken() {
        const bool ontsnapt = bron_.substr(plaats_ + 1).starts_with('\\');
        ga(bron_.find('\'', plaats_ + (ontsnapt ? 3 : 1)) + 1);
        woorden_.push_back({Woord::Naam, "teken", regel_});
    }

    void naam() {
        const std::size_t begin = plaats_;
        while (plaats_ < bron_.size() && (IsNaamteken(bron_[plaats_]) || cijferscheiding(begin)))
            ++plaats_;
        woorden_.push_back(
            {Woord::Naam, std::string(bron_.substr(begin, plaats_ - begin)), regel_});
    }

    /// 10'000 is one number.
    [[nodiscard]] bool cijferscheiding(std::size_t begin) const {
        return bron_[plaats_] == '\'' && bron_[begin] >= '0' && bron_[begin] <= '9';
    }

    void leesteken() {
        const std::size_t lengte = begint("::") || begint("->") ? 2 : 1;
        const std::string_view gelezen = bron_.substr(plaats_, lengte);
        if (gelezen.find_first_of(" \t\r\n") == std::string_view::npos)
            woorden_.push_back({Woord::Teken, std::string(gelezen), regel_});
        ga(plaats_ + lengte);
    }

    std::string_view bron_;
    std::size_t plaats_ = 0;
    int regel_ = 1;
    Woorden woorden_;
};

} // namespace

Woorden SplitsWoorden(std::string_view bron) { return Splitser(bron).splits(); }

Woorden LeesWoorden(const std::filesystem::path& pad) {
    std::ifstream bestand(pad, std::ios::binary);
    const std::string bron{std::istreambuf_iterator<char>(bestand), {}};
    return SplitsWoorden(bron);
}

} // namespace lauwerkrans::berichten
