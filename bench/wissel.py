"""Times whole processes in turn, so that what else the machine does falls on all of them alike.

wissel.py ROUNDS OUT.json FOLDER NAME=COMMAND...

Every round starts each command once, without a shell. A first round warms up and does not count;
what the commands print in it goes to FOLDER/NAME.txt, later output is thrown away. OUT.json gets per
name the medians of the time from start to end and of
the processor's time (ms), and the peak memory (MB) of the largest process in it.
"""

import json
import os
import shlex
import statistics
import sys
import time


def start(woorden, uitvoer):
    """One run: (ms, processor ms, MB)."""
    begin = time.perf_counter()
    naar = [(os.POSIX_SPAWN_OPEN, 1, uitvoer, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o666)]
    kind = os.posix_spawnp(woorden[0], woorden, os.environ, file_actions=naar)
    _, status, gebruik = os.wait4(kind, 0)
    duur = time.perf_counter() - begin
    if status != 0:
        sys.exit(f"{woorden[0]}: exit status {os.waitstatus_to_exitcode(status)}")
    return 1e3 * duur, 1e3 * (gebruik.ru_utime + gebruik.ru_stime), gebruik.ru_maxrss / 1024


def main():
    ronden = int(sys.argv[1])
    map_ = sys.argv[3]
    opdrachten = dict(woord.split("=", 1) for woord in sys.argv[4:])
    metingen = {naam: [] for naam in opdrachten}
    for ronde in range(ronden + 1):
        for naam, opdracht in opdrachten.items():
            uitvoer = os.devnull if ronde > 0 else os.path.join(map_, naam + ".txt")
            meting = start(shlex.split(opdracht), uitvoer)
            if ronde > 0:
                metingen[naam].append(meting)
    uitkomst = {}
    for naam, rijen in metingen.items():
        duren, processor, geheugen = zip(*rijen)
        uitkomst[naam] = {
            "ms": statistics.median(duren),
            "processor_ms": statistics.median(processor),
            "piek_MB": max(geheugen),
        }
    with open(sys.argv[2], "w", encoding="utf-8") as bestand:
        json.dump(uitkomst, bestand, indent=1)


main()
