"""Checks that a script's list has the pairs, sessions and averages of lauwerkrans_lijst.

controleer.py SUITE RANKING LIST...

SUITE has ORVspelers; RANKING is what lauwerkrans_lijst printed; a LIST has line, both members,
sessions and average. All pairs are compared. The program sums in single precision, the scripts in
double: an average may differ by one in its third decimal. Ends with status 1 on any other difference.
"""

import collections
import sys
from pathlib import Path


def namen(suite):
    """Display names by member number, as the program joins them."""
    leden = {}
    tekst = Path(suite, "ORVspelers", "ORVspelers.txt").read_text(encoding="cp1252")
    for regel in tekst.splitlines()[1:]:
        velden = regel.split(",")
        if len(velden) > 5 and velden[1]:  # the last line may be empty fields
            delen = velden[3].replace("-", "", 1), velden[4], velden[5].replace("-", "", 1)
            leden[int(velden[1])] = " ".join(deel for deel in delen if deel.strip())
    return leden


def duizendsten(tekst):
    return round(1000 * float(tekst.replace(",", ".")))


def ranglijst(pad):
    """Averages by line, names and sessions; members may share a name."""
    rijen = collections.defaultdict(list)
    for regel in Path(pad).read_text(encoding="utf-8").splitlines()[2:]:
        _, lijn, _, paar, zittingen, gemiddelde = regel.split("\t")
        rijen[lijn, paar, int(zittingen)].append(duizendsten(gemiddelde))
    return rijen


def lijst(pad, leden):
    rijen = collections.defaultdict(list)
    for regel in Path(pad).read_text(encoding="utf-8").splitlines():
        lijn, lid1, lid2, zittingen, gemiddelde = regel.split("\t")
        paar = f"{leden[int(lid1)]} - {leden[int(lid2)]}"
        rijen[lijn, paar, int(zittingen)].append(duizendsten(gemiddelde))
    return rijen


def vergelijk(pad, hier, daar):
    if hier.keys() != daar.keys():
        sys.exit(f"{pad}: other pairs or sessions, such as {min(hier.keys() ^ daar.keys())}")
    gelijk = anders = 0
    for paar, gemiddelden in hier.items():
        if len(gemiddelden) != len(daar[paar]):
            sys.exit(f"{pad}: another number of {paar}")
        for a, b in zip(sorted(gemiddelden), sorted(daar[paar])):
            if abs(a - b) > 1:
                sys.exit(f"{pad}: {paar} has {b / 1000:.3f} and not {a / 1000:.3f}")
            gelijk += a == b
            anders += a != b
    print(f"{Path(pad).name}: {gelijk} averages equal, {anders} one off in the third decimal")


def main():
    suite, rangen, *lijsten = sys.argv[1:]
    leden = namen(suite)
    hier = ranglijst(rangen)
    for pad in lijsten:
        vergelijk(pad, hier, lijst(pad, leden))


main()
