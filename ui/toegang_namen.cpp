#include "ui/toegang_namen.h"

#include "ui/ontwerp.h"

namespace lauwerkrans {

void GeefNamen(const QWidget& venster,
               std::initializer_list<std::pair<const char*, const char*>> namen) {
    for (const auto& [element, naam] : namen)
        Vind<QWidget>(venster, element)->setAccessibleName(QString::fromUtf8(naam));
}

} // namespace lauwerkrans
