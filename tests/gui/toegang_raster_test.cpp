// The grid as a table for a screen reader.
#include "proeflijst.h"
#include "rasterproef.h"
#include "toegangproef.h"

namespace lauwerkrans::proef {
namespace {

class ToegangRaster : public RasterProef {
protected:
    [[nodiscard]] QAccessibleInterface& tabelToegang() const { return Toegang(P21); }
    [[nodiscard]] QAccessibleTableInterface& tabel() const {
        return *tabelToegang().tableInterface();
    }
    /// `kolommen` columns "K1", "K2", ... with the cells "rij/kolom".
    std::shared_ptr<ProefLijst> toonLijst(std::size_t rijen, std::size_t kolommen) const {
        std::vector<std::string> koppen;
        for (std::size_t kolom = 1; kolom <= kolommen; ++kolom)
            koppen.push_back("K" + std::to_string(kolom));
        auto lijst = std::make_shared<ProefLijst>(rijen, koppen, 18);
        lijst->tekst = [](std::size_t rij, std::size_t kolom) {
            return std::to_string(rij) + "/" + std::to_string(kolom);
        };
        toon(lijst);
        QCoreApplication::processEvents();
        lijst->vergeet();
        return lijst;
    }
    void toets(Qt::Key toets) const { QTest::keyClick(&P21, toets, Qt::ControlModifier); }
};

TEST_F(ToegangRaster, IsATableWithItsHeadersAndCells) {
    toonLijst(7, 3);
    EXPECT_EQ(tabelToegang().role(), QAccessible::Table);
    EXPECT_EQ(tabel().rowCount(), 7);
    EXPECT_EQ(tabel().columnCount(), 3);
    EXPECT_EQ(tabel().columnDescription(1).toStdString(), "K2");
    auto* cel = tabel().cellAt(4, 1);
    EXPECT_EQ(Naam(*cel), "5/2");
    EXPECT_EQ(cel->role(), QAccessible::Cell);
    EXPECT_EQ(cel->parent(), &tabelToegang());
    EXPECT_EQ(cel->tableCellInterface()->rowIndex(), 4);
    EXPECT_EQ(cel->tableCellInterface()->columnIndex(), 1);
    EXPECT_EQ(cel->tableCellInterface()->table(), &tabelToegang());
    EXPECT_EQ(tabel().cellAt(4, 1), cel) << "asked for again it is the same one";
}

TEST_F(ToegangRaster, AnEmptyGridIsAnEmptyTable) {
    EXPECT_EQ(tabel().rowCount(), 0);
    EXPECT_EQ(tabel().columnCount(), 0);
    EXPECT_EQ(tabelToegang().childCount(), 0);
    EXPECT_EQ(tabelToegang().child(0), nullptr);
    EXPECT_FALSE(tabel().cellAt(0, 0)->isValid());
    EXPECT_EQ(tabel().columnDescription(0), QString());
    EXPECT_EQ(tabel().rowDescription(0), QString());
}

TEST_F(ToegangRaster, ThePlaceOfACellIsWhereItIsDrawn) {
    toonLijst(7, 3);
    const QRect vak = tabel().cellAt(4, 1)->rect().translated(-P21.mapToGlobal(QPoint()));
    EXPECT_NEAR(vak.left(), maten::MmNaarPixels(20), 1);
    EXPECT_NEAR(vak.top(), maten::MmNaarPixels(5 + 4 * 4), 1);
    EXPECT_NEAR(vak.width(), maten::MmNaarPixels(20), 1);
    EXPECT_NEAR(vak.height(), maten::MmNaarPixels(4), 1);
    const QPoint midden = tabel().cellAt(4, 1)->rect().center();
    EXPECT_EQ(tabelToegang().childAt(midden.x(), midden.y()), tabel().cellAt(4, 1));
    EXPECT_EQ(tabelToegang().childAt(midden.x(), midden.y() + 5000), nullptr);
}

TEST_F(ToegangRaster, TheHeaderButtonsAreTheHeadersAndOthersTakeTheirPlaceWhereThereAreNone) {
    toonLijst(2, 500);
    const auto kop = [this](int kolom) {
        return tabel().cellAt(0, kolom)->tableCellInterface()->columnHeaderCells().at(0);
    };
    EXPECT_EQ(kop(0)->object(), &proef.vind<QWidget>("cmd20_1"));
    EXPECT_EQ(kop(499)->object(), nullptr);
    EXPECT_EQ(kop(499)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(Naam(*kop(499)), "K500");
    EXPECT_FALSE(proef.heeft("cmd20_500")) << "no button is made for it";
}

TEST_F(ToegangRaster, OfAnImmenseTableOnlyWhatIsSeenIsAChild) {
    const auto lijst = toonLijst(1'570'000, 9'801);
    EXPECT_EQ(tabel().rowCount(), 1'570'000);
    EXPECT_EQ(tabel().columnCount(), 9'801);
    const int kinderen = tabelToegang().childCount();
    EXPECT_GT(kinderen, 50);
    EXPECT_LT(kinderen, 2'000);
    for (int i = 0; i < kinderen; ++i) {
        auto* cel = tabelToegang().child(i);
        EXPECT_EQ(tabelToegang().indexOfChild(cel), i);
        EXPECT_FALSE(cel->state().offscreen);
    }
    EXPECT_EQ(lijst->gevraagd, 0U) << "a text is made when it is asked for";
    auto* ver = tabel().cellAt(1'569'999, 9'800);
    EXPECT_EQ(Naam(*ver), "1570000/9801");
    EXPECT_TRUE(ver->state().offscreen);
    EXPECT_EQ(tabelToegang().indexOfChild(ver), -1);
    EXPECT_EQ(lijst->gevraagd, 1U);
    VScroll20.setValue(VScroll20.maximum());
    HScroll20.setValue(HScroll20.maximum());
    EXPECT_EQ(tabelToegang().child(tabelToegang().childCount() - 1), ver);
    EXPECT_FALSE(ver->state().offscreen);
}

TEST_F(ToegangRaster, CellsThatWereAskedForLongAgoAreTakenBack) {
    toonLijst(100'000, 2);
    auto* eerste = tabel().cellAt(0, 0);
    const QAccessible::Id id = QAccessible::uniqueId(eerste);
    ASSERT_EQ(QAccessible::accessibleInterface(id), eerste);
    std::size_t leven = 0;
    std::vector<QAccessible::Id> ids;
    for (int rij = 1; rij < 50'000; ++rij)
        ids.push_back(QAccessible::uniqueId(tabel().cellAt(rij, 1)));
    for (const auto cel : ids)
        leven += QAccessible::accessibleInterface(cel) != nullptr ? 1 : 0;
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
    EXPECT_LT(leven, 3'000U);
    EXPECT_EQ(Naam(*tabel().cellAt(0, 0)), "1/1") << "it can be asked for anew";
}

TEST_F(ToegangRaster, TheMarkedRowIsTheSelectedOne) {
    toonLijst(40, 3);
    EXPECT_EQ(tabel().selectedRowCount(), 0);
    EXPECT_EQ(tabelToegang().focusChild(), nullptr);
    P21.setFocus();
    toets(Qt::Key_Down);
    toets(Qt::Key_Down);
    EXPECT_EQ(tabel().selectedRows(), QList<int>{1});
    EXPECT_TRUE(tabel().isRowSelected(1));
    EXPECT_FALSE(tabel().isRowSelected(0));
    EXPECT_EQ(tabel().selectedCellCount(), 3);
    auto* cel = tabel().cellAt(1, 2);
    EXPECT_TRUE(cel->state().selected);
    EXPECT_TRUE(cel->tableCellInterface()->isSelected());
    EXPECT_FALSE(tabel().cellAt(0, 2)->state().selected);
    EXPECT_EQ(tabelToegang().focusChild(), tabel().cellAt(1, 0));
    EXPECT_TRUE(tabel().cellAt(1, 0)->state().focused);
    EXPECT_TRUE(tabel().selectRow(7)) << "a reader may mark a row";
    EXPECT_EQ(tabel().selectedRows(), QList<int>{7});
    EXPECT_FALSE(tabel().selectRow(40));
    proef.venster->raster().AccentueerRegel(0, 2); // the band above the first row
    EXPECT_EQ(tabel().selectedRowCount(), 0);
}

TEST_F(ToegangRaster, ACellThatTheNewListLacksIsNotValid) {
    toonLijst(40, 3);
    const auto* cel = tabel().cellAt(30, 2);
    EXPECT_TRUE(cel->isValid());
    const auto* blijft = tabel().cellAt(4, 1);
    toonLijst(5, 2);
    EXPECT_FALSE(cel->isValid());
    EXPECT_EQ(cel->text(QAccessible::Name), QString());
    EXPECT_TRUE(blijft->isValid());
}

} // namespace
} // namespace lauwerkrans::proef
