#!/usr/bin/python3
# Prints the accessibility tree of the running Tramelo, one object a line:
# depth, role, name, x, y, width, height, states (S showing, A active,
# F focused, C checked) and the text of a field or label, tab-separated, in screen coordinates. Hidden subtrees are cut.
import sys

import pyatspi


def linha(o, nivel):
    try:
        estados = o.getState()
        mostra = estados.contains(pyatspi.STATE_SHOWING)
        flags = ("S" if mostra else "") + ("A" if estados.contains(pyatspi.STATE_ACTIVE) else "") \
            + ("F" if estados.contains(pyatspi.STATE_FOCUSED) else "") \
            + ("C" if estados.contains(pyatspi.STATE_CHECKED) else "")
        try:
            e = o.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            caixa = (e.x, e.y, e.width, e.height)
        except Exception:
            caixa = (0, 0, 0, 0)
        nome = (o.name or "").replace("\t", " ").replace("\n", " ")
        texto = ""
        if o.getRoleName() in ("text", "label"):
            try:
                t = o.queryText()
                texto = t.getText(0, t.characterCount).replace("\t", " ").replace("\n", " ")
            except Exception:
                pass
        print(nivel, o.getRoleName(), nome, *caixa, flags, texto, sep="\t")
        if not mostra and nivel > 1:
            return
        for i in range(o.childCount):
            linha(o.getChildAtIndex(i), nivel + 1)
    except Exception:
        pass


desk = pyatspi.Registry.getDesktop(0)
for i in range(desk.childCount):
    app = desk.getChildAtIndex(i)
    if app is not None and app.name == "Tramelo":
        linha(app, 0)
sys.stdout.flush()
