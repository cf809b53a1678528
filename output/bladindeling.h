// Page layout: from a list and the measures of a page to texts and lines at their places. Lengths
// are millimetres from the paper's left and upper edge, letters are points. Nothing is drawn here:
// printer, preview and tests read the same pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "output/uitvoer.h"

namespace lauwerkrans {

namespace bladmaat {
constexpr double links = 20;     // margin
constexpr double boven = 15;     // margin
constexpr double titelblok = 15; // the list starts below it
constexpr double lijnkop = 8;
constexpr double kolomkop = 7;
constexpr double voet = 17; // reserve at the page foot
constexpr double rij = 4.8;
constexpr double speling = 1e-6; // sums of 4.8 are not exact
constexpr double breedte = 170;  // printable
constexpr double bladBreedte = breedte + 2 * links;
constexpr double a4Hoogte = 297;
} // namespace bladmaat

/// The most pages that are shown and printed at once.
constexpr std::size_t meesteBladen = 36;

/// The message for a list of more pages.
[[nodiscard]] std::string TeVeelBladenTekst();

enum class Lettertype { Arial, ArialNarrow };

struct Letter {
    double punten = 10;
    bool vet = false;
    Lettertype type = Lettertype::Arial;
};

/// The width of a text in millimetres.
using Meting = std::function<double(const std::string& tekst, const Letter& letter)>;

/// A text with its left end at x and its baseline at y. `rek` is its width as a part of the normal
/// one: below 1 for a text that is narrowed to fit.
struct BladTekst {
    double x = 0;
    double y = 0;
    std::string tekst;
    Letter letter;
    double rek = 1;
};

/// A straight line.
struct BladLijn {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
};

/// One page: its lines are drawn first, then its texts.
struct Blad {
    std::vector<BladLijn> lijnen;
    std::vector<BladTekst> teksten;
};

/// The part of a page that is asked for, from y to y; of a long page only some rows are seen.
struct Uitsnede {
    double van = 0;
    double tot = std::numeric_limits<double>::infinity();
};

/// The pages of one list on paper of one height.
class Bladen {
public:
    Bladen() = default;
    Bladen(const Bladen&) = delete;
    Bladen(Bladen&&) = delete;
    Bladen& operator=(const Bladen&) = delete;
    Bladen& operator=(Bladen&&) = delete;
    virtual ~Bladen() = default;

    [[nodiscard]] virtual std::size_t aantal() const = 0;
    /// The height of a page.
    [[nodiscard]] virtual double hoogte() const = 0;
    /// Page 1 and up. Rows outside the part asked for may be left out.
    [[nodiscard]] virtual Blad blad(std::size_t nummer, const Meting& meting,
                                    const Uitsnede& deel = {}) const = 0;
};

/// Puts texts and lines on a page.
class Bladzetter {
public:
    explicit Bladzetter(const Meting& meting) : meting_(meting) {}

    /// Baselines: of a text whose upper edge is at y, and of one in the middle of a height.
    [[nodiscard]] static double onder(double y, const Letter& letter);
    [[nodiscard]] static double midden(double y, double hoogte, const Letter& letter);

    /// A text from x on. One that is wider than `ruimte` is narrowed, then made smaller.
    void links(double x, double basis, std::string tekst, const Letter& letter,
               double ruimte = std::numeric_limits<double>::infinity());
    /// A text that ends at x.
    void rechts(double x, double basis, std::string tekst, const Letter& letter);
    /// A text centred between two x.
    void tussen(double x1, double x2, double basis, std::string tekst, const Letter& letter);
    /// A rule across the printable width.
    void streep(double y);
    /// The frame, the head and the foot of a page.
    void kader(const Uitvoer& uitvoer, double hoogte, std::size_t nummer);
    /// Initials and page number.
    void voet(double hoogte, std::size_t nummer);

    [[nodiscard]] double breedte(const std::string& tekst, const Letter& letter) const {
        return meting_(tekst, letter);
    }
    [[nodiscard]] Blad klaar() { return std::move(blad_); }

private:
    const Meting& meting_;
    Blad blad_;
};

/// The rows of a list on a page, the first with its upper edge at `boven`. A row whose lower edge
/// would reach the foot reserve goes on the next page; one row always fits.
[[nodiscard]] std::size_t RijenOpBlad(double boven, double bladHoogte);

/// The pages that so many rows take; an empty list takes one.
[[nodiscard]] std::size_t AantalBladen(std::size_t rijen, std::size_t opBlad);

/// A percentage in thousandths of a percent as it is printed: 57,125 %.
[[nodiscard]] std::string BladPercentage(std::int32_t duizendsten);

} // namespace lauwerkrans
