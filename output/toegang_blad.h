// A page of a preview for screen readers: its texts, to be read line by line.
#pragma once

#include <QString>

namespace lauwerkrans {

class BladVlak;

/// Teaches the toolkit how a BladVlak is read. May be called any number of times.
void InstalleerBladToegang();

/// Tells screen readers that another page is on show; `oud` is the text that was read before.
void MeldAnderBlad(BladVlak& blad, const QString& oud);

} // namespace lauwerkrans
