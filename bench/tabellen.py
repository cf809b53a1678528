"""Writes the tables of docs/metingen.md: tabellen.py MEASUREMENTS DOCUMENT

MEASUREMENTS is the folder that meet.sh fills. In the document a table stands between
<!-- tabel: NAME --> and <!-- einde -->; all other text is left as it is.
"""

import json
import re
import sys
from pathlib import Path

COMPETITIES = [  # name of the benchmark, what it is
    ("club", "club, 5 x 5"),
    ("groot", "large, 30 x 33"),
    ("grootst", "largest, 99 x 99"),
    ("achtduizend_paren", "99 x 99, many pairs"),
    ("losse_paren", "99 x 99, partners at random"),
]
DELEN = [("deel_1", "1 %"), ("deel_5", "5 %"), ("deel_25", "25 %"), ("deel_50", "50 %"),
         ("deel_99", "100 %")]


def lees(map_):
    """The counters of every benchmark, by program_benchmark without its iterations."""
    metingen = {}
    for pad in sorted(map_.glob("*_bench_*.json")):
        for meting in json.loads(pad.read_text(encoding="utf-8"))["benchmarks"]:
            programma = "" if pad.name.startswith("kern") else "venster_"
            naam = re.sub(r"/iterations:.*", "", meting["name"]).replace("/", "_")
            metingen[programma + naam] = meting
    return metingen


def heel(waarde):
    return f"{waarde:,.0f}"


def kort(waarde):
    """Three significant digits, no fewer than the whole number."""
    if waarde >= 99.95:
        return f"{waarde:.0f}"
    if waarde >= 9.995:
        return f"{waarde:.1f}"
    return f"{waarde:.2f}" if waarde >= 0.0995 else f"{waarde:.3f}"


def tabel(koppen, rijen):
    regels = [koppen, ["---"] * len(koppen), *rijen]
    return "\n".join("| " + " | ".join(regel) + " |" for regel in regels)


def lezen(metingen):
    rijen = []
    for naam, tekst in COMPETITIES:
        m = metingen["Meet_" + naam]
        paren = heel(m["paren"])
        if m["paren"] != m["paren_samen"]:
            paren += ", together " + heel(m["paren_samen"])
        delen = ["lezen_eerste", "lezen", "rekenen_gewoon", "rekenen_gewoon_samen",
                 "rekenen_gewogen", "rekenen_gewogen_samen"]
        rijen.append([tekst, heel(m["bestanden"]), heel(m["rijen"]), paren, kort(m["kaal_ms"]),
                      *(kort(m[deel]) for deel in delen), heel(m["piek_MB"])])
    return tabel(["Competition", "Files", "Rows", "Pairs", "kaal (ms)", "eerste", "lezen",
                  "rekenen, per line", "together", "weighted", "weighted, together", "Peak (MB)"],
                 rijen)


def groei(metingen):
    rijen = []
    for naam, tekst in DELEN:
        m = metingen["Meet_" + naam]
        samen = m["lezen_ms"] + m["rekenen_gewoon_ms"]
        rijen.append([tekst, heel(m["bestanden"]), heel(m["rijen"]), kort(m["kaal_ms"]),
                      kort(m["lezen_ms"]), kort(m["rekenen_gewoon_ms"]),
                      heel(1e6 * samen / m["rijen"]), kort(m["piek_MB"])])
    return tabel(["Size", "Files", "Rows", "kaal (ms)", "Reading (ms)", "Calculating (ms)",
                  "Both, per row (ns)", "Peak (MB)"], rijen)


def vergelijk(metingen, map_):
    rijen = []
    for naam, tekst in COMPETITIES:
        pad = map_ / f"vergelijk_{naam}.json"
        if not pad.exists():
            continue
        wissel = json.loads(pad.read_text(encoding="utf-8"))
        m = metingen["Meet_" + naam]
        binnen = m["lezen_ms"] + m["rekenen_gewoon_ms"]
        heel_proces = wissel["lauwerkrans_lijst"]["ms"]
        rijen.append([tekst, "this program, in process", kort(binnen), "", "", ""])
        for programma, meting in wissel.items():
            ms = meting["ms"]
            rijen.append([tekst, programma, kort(ms), kort(ms / heel_proces), kort(ms / binnen),
                          heel(meting["piek_MB"])])
    return tabel(["Competition", "What", "Time (ms)", "times lauwerkrans_lijst",
                  "times in process", "Peak (MB)"], rijen)


def venster(metingen):
    rijen = []
    for naam, tekst in COMPETITIES:
        m = metingen.get("venster_Meet_" + naam)
        if m is None:
            continue
        rijen.append([tekst, heel(m["rijen"]), kort(m["kaal_ms"]), kort(m["start_ms"]),
                      kort(m["bereken_ms"]), kort(m["controle_ms"]), kort(m["tonen_ms"]),
                      kort(m["stap_ms"]), heel(m["piek_MB"])])
    return tabel(["Competition", "Rows", "kaal (ms)", "Start (ms)", '"Bereken" (ms)',
                  '"Controle" (ms)', "its list shown (ms)", "Scroll step (ms)", "Peak (MB)"], rijen)


def details(metingen):
    rijen = []
    for competitie, venster_, tekst in [
            ("club", "", "club, 5 x 5"), ("grootst", "", "largest, 99 x 99"),
            ("losse_paren", "", "99 x 99, partners at random"),
            ("groot", "_heel_scherm", "large, 30 x 33, on 1920 x 1020"),
            ("grootst", "_heel_scherm", "largest, on 1920 x 1020")]:
        m = metingen[f"venster_MeetDetails_{competitie}{venster_}"]
        rijen.append([tekst, heel(m["rijen"]), heel(m["kolommen"]), kort(m["bereken_ms"]),
                      kort(m["tonen_ms"]), kort(m["stap_neer_ms"]), kort(m["stap_opzij_ms"]),
                      heel(m["piek_MB"])])
    return tabel(["Ranking with details", "Rows", "Columns", '"Bereken" (ms)', "shown (ms)",
                  "Step down (ms)", "Step aside (ms)", "Peak (MB)"], rijen)


def begin(map_):
    rijen = []
    for scherm in ("offscreen", "xcb"):
        m = json.loads((map_ / f"begin_{scherm}.json").read_text(encoding="utf-8"))
        kaal, programma = m["kaal_venster"], m["Lauwerkrans"]
        rijen.append([{"offscreen": "in memory", "xcb": "Xvfb"}[scherm], kort(kaal["ms"]),
                      kort(programma["ms"]), kort(programma["ms"] / kaal["ms"]),
                      kort(programma["processor_ms"] / kaal["processor_ms"])])
    return tabel(["Screen", "Bare window (ms)", "Program (ms)", "times the bare window",
                  "in processor time"], rijen)


def bladen(metingen):
    rijen = []
    for sjabloon, blad, tekst in [
            ("BladenLijnen", "BladLijnen", "champion list"),
            ("BladenTotaal", "BladTotaal", "ranking over all lines, one long page")]:
        indeling = metingen[f"DeelIn<{sjabloon}>_1000"]
        m = metingen["venster_" + blad]
        rijen.append([tekst, kort(indeling["real_time"]), kort(m["eerste_ms"]), kort(m["blad_ms"])])
    return tabel(["List", "Layout (ms)", "Layout and drawing, first (ms)", "next (ms)"], rijen)


def main():
    map_, document = Path(sys.argv[1]), Path(sys.argv[2])
    metingen = lees(map_)
    tabellen = {
        "omgeving": (map_ / "omgeving.txt").read_text(encoding="utf-8").strip(),
        "lezen": lezen(metingen),
        "groei": groei(metingen),
        "vergelijk": vergelijk(metingen, map_),
        "venster": venster(metingen),
        "details": details(metingen),
        "begin": begin(map_),
        "bladen": bladen(metingen),
    }
    tekst = document.read_text(encoding="utf-8")
    for naam, inhoud in tabellen.items():
        vorm = re.compile(rf"(<!-- tabel: {naam} -->\n).*?(<!-- einde -->)", re.DOTALL)
        tekst, aantal = vorm.subn(lambda deel, nieuw=inhoud: deel[1] + nieuw + "\n" + deel[2], tekst)
        if aantal != 1:
            sys.exit(f"{document}: the table {naam} stands {aantal} times in it")
    document.write_text(tekst, encoding="utf-8")


if __name__ == "__main__":
    main()
