// The keyboard in high contrast: what has the focus shows it there too.
#include <QCheckBox>

#include "toetsproef.h"
#include "tools/zwart_bureaublad.h"
#include "ui/hoog_contrast.h"
#include "ui/stijl.h"
#include "voorbeeldproef.h"

namespace lauwerkrans::proef {
namespace {

/// The windows are made in the style, so this comes before them.
struct HoogContrastStijl {
    HoogContrastStijl() { ZetStijl(*qApp, HoogContrastPalet(ZwartBureaublad())); }
    HoogContrastStijl(const HoogContrastStijl&) = delete;
    HoogContrastStijl(HoogContrastStijl&&) = delete;
    HoogContrastStijl& operator=(const HoogContrastStijl&) = delete;
    HoogContrastStijl& operator=(HoogContrastStijl&&) = delete;
    ~HoogContrastStijl() { ZetStijl(*qApp); }
};

class ToetsenHoogContrast : private HoogContrastStijl, public ::testing::Test {
protected:
    ToetsenHoogContrast() : proef(12, 2, 2) {
        proef.competitie.schrijfLeden(99, {{3, "Jan", "", "Smit"}, {17, "Piet", "", "Berk"}});
        proef.competitie.schrijfZitting(1, 1, {ProefCompetitie::regel("A1", "3-17", "60,000")});
        proef.start();
        proef.typ("txt1_1", "0");
        proef.typ("txt1_2", "0");
        proef.klik("cmd1_0");
        Wacht(*proef.venster);
    }

    Vensterproef proef;
};

TEST_F(ToetsenHoogContrast, EveryStopOfTheWindowShowsThatItHasTheFocus) {
    ZietFocus(*proef.venster);
}

TEST_F(ToetsenHoogContrast, EveryStopOfThePreviewsDoes) {
    for (const char* naam : {"frmPrinten", "frmPrintenTI"}) {
        proef.uitvoer.cmdPrinten_Click(*proef.venster);
        auto* voorbeeld = proef.voorbeeld(naam);
        ASSERT_NE(voorbeeld, nullptr);
        Wacht(*voorbeeld);
        ZietFocus(*voorbeeld);
        voorbeeld->close();
        proef.vind<QCheckBox>("chkGemAlleLijnen").setChecked(true);
    }
}

} // namespace
} // namespace lauwerkrans::proef
