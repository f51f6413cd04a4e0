"""The tables and the tree of tervak-report, read by others.   tables_test.py REPORT DIRECTORY DOCUMENT

DIRECTORY has runs of the examples, a directory each. DOCUMENT shows how to read the tables in Python.
"""
import csv
import json
import os
import re
import subprocess
import sys

import pandas

report, runs, document = sys.argv[1:]
os.environ["MPLBACKEND"] = "Agg"


def rows(name):
    with open(os.path.join("tables", name), newline="", encoding="utf-8") as file:
        text = file.read()
    assert text.endswith("\r\n") and text.count("\r") == text.count("\n") == text.count("\r\n"), name
    return list(csv.DictReader(text.splitlines()))


def number(field):
    return float(field) if field else None


def check(example, options):
    os.chdir(os.path.join(runs, example))
    subprocess.run([report, "--csv", "tables", "--json", "tree.json", "--units", "kN,m", *options, "TERVAK.RIF"],
                   check=True, stdout=subprocess.DEVNULL)
    with open("tree.json", encoding="utf-8") as file:
        profiles = json.load(file)["profiles"]
    layers = [(p, layer) for p in profiles for layer in p["layers"]]

    # One and the same in both, row by row.
    table = rows("layers.csv")
    assert len(table) == len(layers) > 0
    for row, (p, layer) in zip(table, layers):
        tree = {**layer, "profile": p["profile"], "boring": p["boring"]}
        for name, field in row.items():
            assert field == tree[name] if name in ("boring", "soil") else float(field) == tree[name], (row, name)
    for name, family_of, value in (("curves.csv", "curves", "stress"), ("monopile.csv", "monopile", "force")):
        expected = [(p["profile"], layer["layer"], c["diameter"], c["family"], *point)
                    for p, layer in layers for c in layer[family_of]
                    for point in zip(c["point"], c["displacement"], c[value])]
        found = [(int(r["profile"]), int(r["layer"]), float(r["diameter"]), r["family"], int(r["point"]),
                  float(r["displacement"]), float(r[value]))
                 for r in (rows(name) if os.path.exists("tables/" + name) else [])]
        assert found == expected, (example, name)
    capacity = [dict(row, profile=p["profile"]) for p in profiles for row in p["capacity"]]
    assert [{k: number(v) for k, v in row.items()} for row in rows("capacity.csv")] == capacity

    # pandas takes each column as numbers, texts apart, and the units name columns that exist.
    frames = {name: pandas.read_csv("tables/" + name) for name in os.listdir("tables")}
    texts = {"boring", "soil", "family", "method", "file", "column", "unit"}
    for name, frame in frames.items():
        assert all(pandas.api.types.is_numeric_dtype(frame[c]) for c in frame if c not in texts), name
    for unit in frames["units.csv"].itertuples():
        assert unit.column in frames[unit.file], unit
    curves = frames["curves.csv"]
    py = curves[curves.family == "py"]
    assert ((py.stress * py.diameter - py.force_per_length).abs() <= 1e-8 * py.force_per_length.abs()).all()
    assert curves[curves.family != "py"].force_per_length.isna().all()
    per_curve = curves.groupby(["profile", "layer", "diameter", "family"]).size()
    assert len(per_curve) == 3 * sum(len(p["layers"]) * len(p["diameters"]) for p in profiles)
    assert (per_curve == 29).all() == bool(options), (example, "filler")


examples = sorted(os.listdir(runs))
assert len(examples) > 10
for example in examples:
    check(example, [])
check("monopile-all", ["--all-points"])

# The lines of the document do what it says.
with open(document, encoding="utf-8") as file:
    example, code = re.search(r"<!-- python: (\S+) -->\n```python\n(.*?)```", file.read(), re.S).groups()
check(example, [])
printed = subprocess.run([sys.executable, "-c", code], check=True, capture_output=True, text=True).stdout
assert os.path.getsize("layer9.png") > 1000 and float(printed) == 14819.3432, printed
