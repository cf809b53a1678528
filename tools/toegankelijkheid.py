"""Works with the program as a screen reader does: through the assistive interface (AT-SPI) alone.

Arguments: the program, in the folder that it is to start in, and perhaps a file for the list of
what was read. Exit status 1 when something is missing; what, has then been said.
"""

import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30  # seconds
HEADERS = ["Nr", "Lijn", "Rang", "Paar", "AantZit", "Gemid %"]
FIRST_ROW = [r"1", r"[A-C]", r"1", r".+ - .+", r"\d+", r"\d\d,\d{3}"]
LISTED_ROWS = 4  # of a table in the list

errors = []
events = []


def expect(condition, text):
    """Remembers what is missing; the rest is looked at all the same."""
    if not condition:
        errors.append(text)
        print("MISSING:", text)


def listen():
    """Lets the events that have come in be handled."""
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def wait_for(question, text):
    """What the question is answered with, as soon as that is something."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        listen()
        try:
            answer = question()
        except GLib.Error:  # it went away while it was asked
            answer = None
        if answer:
            return answer
        time.sleep(0.05)
    print(f"MISSING after {PATIENCE} s: {text}")
    sys.exit(1)


def children(node):
    found = (node.get_child_at_index(i) for i in range(node.get_child_count()))
    return [child for child in found if child is not None]


def walk(node, depth=0):
    """A node and what is below it that can be seen; of a table the first rows."""
    yield node, depth
    below = children(node)
    if node.get_role() == Atspi.Role.TABLE:
        below = below[: LISTED_ROWS * max(Atspi.Table.get_n_columns(node), 1)]
    for child in below:
        if child.get_state_set().contains(Atspi.StateType.VISIBLE):
            yield from walk(child, depth + 1)


def window(beginning):
    """The window whose title begins like this."""
    for program in children(Atspi.get_desktop(0)):
        for frame in children(program):
            if frame.get_name().startswith(beginning) and frame.get_state_set().contains(
                Atspi.StateType.SHOWING
            ):
                return frame
    return None


def find(root, role, name):
    """The first node of this role whose name is that."""
    return next(
        (n for n, _ in walk(root) if n.get_role() == role and re.fullmatch(name, n.get_name())),
        None,
    )


def press(root, name):
    button = wait_for(lambda: find(root, Atspi.Role.PUSH_BUTTON, name), f"button {name}")
    Atspi.Action.do_action(button, 0)  # the other one only gives it the focus


def check_criteria(main):
    """Every line has its box; types a minimum into each."""
    for line in "ABC":
        box = find(main, Atspi.Role.TEXT, f"Minimum aantal zittingen lijn {line}")
        expect(box, f"the box for the minimum of line {line}")
        if box:
            Atspi.EditableText.set_text_contents(box, "5")
    for caption in ("Gewogen gemiddelde", "Zittingdetails tonen", "Gemidd% ongeacht de lijn"):
        expect(find(main, Atspi.Role.CHECK_BOX, caption), f"check box {caption}")


def check_table(main):
    """The ranking as a table: its headers, its cells, and a row that is marked."""
    press(main, "Bereken alle lijnen")
    grid = wait_for(
        lambda: find(main, Atspi.Role.TABLE, "Berekening voor lijn ABC"), "the table of the result"
    )
    columns = range(Atspi.Table.get_n_columns(grid))
    described = [Atspi.Table.get_column_description(grid, c) for c in columns]
    expect(described == HEADERS, f"the descriptions of the columns, not {described}")
    headed = [Atspi.Table.get_column_header(grid, c).get_name() for c in columns]
    expect(headed == HEADERS, f"the headers of the columns, not {headed}")
    rows = Atspi.Table.get_n_rows(grid)
    expect(rows > 20, f"rows, not {rows}")
    first = [Atspi.Table.get_accessible_at(grid, 0, c).get_name() for c in columns]
    right = len(first) == len(FIRST_ROW) and all(map(re.fullmatch, FIRST_ROW, first))
    expect(right, f"the cells of the first row, not {first}")
    last = Atspi.Table.get_accessible_at(grid, rows - 1, 0).get_name()
    expect(last == str(rows), f"the last row, not {last}")
    check_mark(main, grid)


def check_mark(main, grid):
    """A row marked through the interface is the selected one, and that is told."""
    Atspi.Component.grab_focus(main)
    Atspi.Component.grab_focus(grid)
    wait_for(lambda: grid.get_state_set().contains(Atspi.StateType.FOCUSED), "focus in the table")
    events.clear()
    expect(Atspi.Table.add_row_selection(grid, 2), "marking the third row")
    expect(list(Atspi.Table.get_selected_rows(grid)) == [2], "the marked row as the selected one")
    cell = Atspi.Table.get_accessible_at(grid, 2, 3)
    expect(cell.get_state_set().contains(Atspi.StateType.SELECTED), "a selected cell in it")
    for event in (("object:state-changed:selected", "3"), ("object:state-changed:focused", "3")):
        wait_for(lambda wanted=event: wanted in events, f"event {event}")


def check_preview(main):
    """The page of the preview is read line by line."""
    press(main, r"Uitvoerlijsten \.\.\.")
    preview = wait_for(lambda: window("Zittinguitslag"), "the preview")
    page = find(preview, Atspi.Role.DOCUMENT_FRAME, "Afdrukvoorbeeld, pagina 1 van .*")
    expect(page, "the page of the preview")
    lines = Atspi.Text.get_text(page, 0, Atspi.Text.get_character_count(page)).splitlines()
    expect("Lijn A  (Minimum=5)" in lines, f"line A on the page, not {lines[:4]}")
    expect("Rang  Paar  Zittingen  Perc" in lines, "the headers on the page")
    press(preview, "Terug")


def listing(main):
    """The main window as it is read, a control a line."""
    lines = []
    for node, depth in walk(main):
        states = [
            word
            for word, state in (
                ("checked", Atspi.StateType.CHECKED),
                ("selected", Atspi.StateType.SELECTED),
            )
            if node.get_state_set().contains(state)
        ]
        if not node.get_state_set().contains(Atspi.StateType.ENABLED):
            states.append("disabled")
        line = f"{'  ' * depth}{node.get_role_name()} \"{node.get_name()}\""
        if node.get_role() == Atspi.Role.TEXT:
            line += f" = {Atspi.Text.get_text(node, 0, -1)!r}"
        lines.append(f"{line} {' '.join(states)}".rstrip())
    return "\n".join(lines) + "\n"


def note(event):
    if event.detail1:
        events.append((event.type, event.source.get_name()))


def main():
    listener = Atspi.EventListener.new(note)
    for kind in ("selected", "focused"):
        listener.register(f"object:state-changed:{kind}")
    program = subprocess.Popen(sys.argv[1:2])
    try:
        frame = wait_for(lambda: window("Bereken de Club- cq Lijnkampioenen"), "the main window")
        check_criteria(frame)
        check_table(frame)
        check_preview(frame)
        read = listing(frame)
    finally:
        program.kill()
        program.wait()
    print(read, end="")
    if len(sys.argv) > 2:
        with open(sys.argv[2], "w", encoding="utf-8") as file:
            file.write(read)
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())
