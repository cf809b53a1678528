"""The plain average of every pair of every line, with pandas: line, both members, sessions, average.

pandas_lijst.py COMPETITION
"""

import io
import sys
from pathlib import Path

import pandas as pd

# All files as one: reading them one by one takes pandas several times as long.
bestanden = sorted(Path(sys.argv[1]).glob("Ronde-*/Zitting-*/PercZit-*.txt"))
bytes_ = b"".join(bestand.read_bytes() for bestand in bestanden)
zit = pd.read_csv(io.BytesIO(bytes_), header=None, usecols=[2, 3, 4], decimal=",",
                  names=["nr", "richting", "paar", "leden", "perc", "spellen", "rest"])
zit = zit[zit.perc != 0]
leden = zit.leden.str.split("-", expand=True).astype(int)
gemiddeld = zit.perc.groupby([zit.paar.str[0], leden.min(axis=1), leden.max(axis=1)])
lijst = gemiddeld.agg(["count", "mean"]).reset_index()
lijst.to_csv(sys.stdout, sep="\t", header=False, index=False, float_format="%.3f")
