// The lists that the grid shows: the ranking and the control list. A list is a title, headers, a
// number of rows and a call that gives the text of a cell, so that no text is kept for a row that
// is not on the screen.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "calc/overzicht.h"

namespace lauwerkrans {

/// Measures a text, in any unit; `vet` for a bold one.
using Meter = std::function<double(const std::string& tekst, bool vet)>;

/// The shape of a text: every digit a 0. Texts of one shape are equally wide, since digits have one
/// width in the fonts that are used.
[[nodiscard]] std::string Vorm(std::string tekst);

/// Rows and columns are counted from 1.
class Lijst {
public:
    Lijst() = default;
    Lijst(const Lijst&) = delete;
    Lijst(Lijst&&) = delete;
    Lijst& operator=(const Lijst&) = delete;
    Lijst& operator=(Lijst&&) = delete;
    virtual ~Lijst() = default;

    [[nodiscard]] const std::string& titel() const { return titel_; }
    /// The header texts; element 0 is that of column 1.
    [[nodiscard]] const std::vector<std::string>& koppen() const { return koppen_; }
    [[nodiscard]] std::size_t kolommen() const { return koppen_.size(); }

    [[nodiscard]] virtual std::size_t rijen() const = 0;
    [[nodiscard]] virtual std::string cel(std::size_t rij, std::size_t kolom) const = 0;

    /// What a cell says in words, where its text is short for something; else empty.
    [[nodiscard]] virtual std::string uitleg(std::size_t /*rij*/, std::size_t /*kolom*/) const {
        return {};
    }

    /// Whether a column is drawn in bold and in the colour of the row's line.
    [[nodiscard]] virtual bool vet(std::size_t kolom) const = 0;
    /// The letter of a row's line.
    [[nodiscard]] virtual char lijn(std::size_t rij) const = 0;

    /// The width of the widest cell of a column. Texts of one shape are measured once.
    [[nodiscard]] virtual double breedsteCel(std::size_t kolom, const Meter& meet) const = 0;

protected:
    std::string titel_;
    std::vector<std::string> koppen_;
};

/// The ranking of an Uitslag: "Nr", "Lijn", "Rang", "Paar", "AantZit", "Gemid %" and, with session
/// details, a column per session. `toonControle` makes its title that of a control list.
[[nodiscard]] std::shared_ptr<const Lijst>
MaakRanglijst(const std::shared_ptr<const Uitslag>& uitslag, bool zitDetails,
              bool toonControle = false);

/// The score rows as they were read: "Nr" and the eight columns of `ZitRegels`.
[[nodiscard]] std::shared_ptr<const Lijst>
MaakControlelijst(const std::shared_ptr<const Controle>& controle);

/// The session headers of a ranking with details, "R1-Z1-Sp" and so on. The first round's number of
/// sessions holds for every round, and as many rounds have headers as have a session; the columns
/// left over have the empty text.
[[nodiscard]] std::vector<std::string> ZittingKoppen(const RondeInfo& rondeInfo);

} // namespace lauwerkrans
