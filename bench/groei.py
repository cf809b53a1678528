"""Draws how time and memory grow with the competition: groei.py MEASUREMENTS OUT.svg

MEASUREMENTS is the folder that meet.sh fills; its deel_*.json are parts of the largest competition.
"""

import sys
from pathlib import Path

from tabellen import lees

BREED, HOOG = 920, 430
VAK_BREED, VAK_HOOG, VAK_BOVEN = 320, 270, 80
LETTERS = 'font-family="Liberation Sans, Arial, sans-serif"'
REEKSEN = [  # label, colour, ms of one measurement
    ("reading and calculating", "#b5460f", lambda m: m["lezen_ms"] + m["rekenen_gewoon_ms"]),
    ("reading", "#1f5fa8", lambda m: m["lezen_ms"]),
    ("bare reading", "#5f5f5f", lambda m: m["kaal_ms"]),
]


def tekst(x, y, woorden, grootte=13, anker="start", kleur="#222", extra=""):
    return (f'<text x="{x:.1f}" y="{y:.1f}" font-size="{grootte}" text-anchor="{anker}" '
            f'fill="{kleur}" {LETTERS} {extra}>{woorden}</text>')


def stap(hoogste):
    """A round step of which four to eight reach the highest value."""
    macht = 1.0
    while macht * 10 <= hoogste:
        macht *= 10
    while macht > hoogste:
        macht /= 10
    return next(macht * f for f in (0.1, 0.2, 0.25, 0.5, 1, 2) if hoogste / (macht * f) <= 8)


class Vak:
    """One panel, its axes from 0 to a round number."""

    def __init__(self, links, titel, eenheid, hoogste_x, hoogste_y):
        self.links, self.delen = links, []
        self.stap_x, self.stap_y = stap(hoogste_x), stap(hoogste_y)
        self.x_einde = hoogste_x * 1.03
        self.y_einde = self.stap_y * -(-hoogste_y * 1.05 // self.stap_y)
        self.delen.append(tekst(links, VAK_BOVEN - 30, titel, 15, extra='font-weight="bold"'))
        self.delen.append(tekst(links, VAK_BOVEN - 11, eenheid, 12, kleur="#555"))
        self.assen()

    def x(self, waarde):
        return self.links + VAK_BREED * waarde / self.x_einde

    def y(self, waarde):
        return VAK_BOVEN + VAK_HOOG * (1 - waarde / self.y_einde)

    def lijn(self, punten, kleur, dikte=1.0, streep=""):
        plaatsen = " ".join(f"{self.x(x):.1f},{self.y(y):.1f}" for x, y in punten)
        self.delen.append(f'<polyline points="{plaatsen}" fill="none" stroke="{kleur}" '
                          f'stroke-width="{dikte}" stroke-dasharray="{streep}"/>')

    def assen(self):
        aantal = round(self.y_einde / self.stap_y)
        for i in range(aantal + 1):
            waarde = i * self.stap_y
            self.lijn([(0, waarde), (self.x_einde, waarde)], "#888" if i == 0 else "#ddd")
            self.delen.append(tekst(self.links - 8, self.y(waarde) + 4, f"{waarde:g}", 12, "end"))
        i = 0
        while i * self.stap_x <= self.x_einde:
            waarde = i * self.stap_x
            self.delen.append(tekst(self.x(waarde), VAK_BOVEN + VAK_HOOG + 18, f"{waarde:g}", 12,
                                    "middle"))
            i += 1
        midden = self.links + VAK_BREED / 2
        self.delen.append(tekst(midden, VAK_BOVEN + VAK_HOOG + 40, "score rows (millions)", 12,
                                "middle", "#555"))

    def reeks(self, punten, kleur):
        self.lijn(punten, kleur, 2)
        for x, y in punten:
            self.delen.append(f'<circle cx="{self.x(x):.1f}" cy="{self.y(y):.1f}" r="3.5" '
                              f'fill="{kleur}"/>')

    def bijschrift(self, punt, woorden, kleur):
        self.delen.append(tekst(self.x(punt[0]) + 9, self.y(punt[1]) + 4, woorden, 12, kleur=kleur))


def teken(metingen):
    rijen = [m["rijen"] / 1e6 for m in metingen]
    tijden = [(naam, kleur, [(x, ms(m)) for x, m in zip(rijen, metingen)])
              for naam, kleur, ms in REEKSEN]
    geheugen = [(x, m["piek_MB"]) for x, m in zip(rijen, metingen)]
    tijd = Vak(50, "Time", "milliseconds, warm", rijen[-1], max(p[-1][1] for _, _, p in tijden))
    ruimte = Vak(580, "Memory", "peak of the process in MB, a control list on show", rijen[-1],
                 geheugen[-1][1])
    for naam, kleur, punten in tijden:
        tijd.lijn([(0, 0), punten[-1]], "#999", 1, "4 4")
        tijd.reeks(punten, kleur)
        tijd.bijschrift(punten[-1], naam, kleur)
    ruimte.lijn([geheugen[0], geheugen[-1]], "#999", 1, "4 4")
    ruimte.reeks(geheugen, "#2e7d4f")
    onder = ("From 1 to 100 % of 9,801 files; dashed: growth in proportion, from nothing (time) or "
             "from the smallest (memory).")
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{BREED}" height="{HOOG}" '
        f'viewBox="0 0 {BREED} {HOOG}">',
        '<rect width="100%" height="100%" fill="#fff"/>',
        tekst(50, 24, "Growth with the competition", 17, extra='font-weight="bold"'),
        *tijd.delen, *ruimte.delen, tekst(50, HOOG - 12, onder, 12, kleur="#555"), "</svg>\n"])


def main():
    metingen = sorted((m for naam, m in lees(Path(sys.argv[1])).items()
                       if naam.startswith("Meet_deel_")), key=lambda m: m["rijen"])
    Path(sys.argv[2]).write_text(teken(metingen), encoding="utf-8")


if __name__ == "__main__":
    main()
