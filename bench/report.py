"""Prints what script/bench measured as tables, writes it as JSON, and fails where a limit is passed: report.py FOLDER

The folder holds files of lines whose fields are separated by tabs, as bench/measure.cpp and script/bench write them.
"""
import glob
import json
import os
import platform
import sys

MEMBER = ("where", "class", "member", "variant", "own_cost", "begins_session")
TRIPS = MEMBER + tuple(f"{use}_{what}" for use in ("first", "third", "script", "least")
                       for what in ("look_ups", "questions", "calls"))
TIMES = MEMBER + ("steps", "vtable", "invoke", "client", "looking_up")  # nanoseconds
FIELDS = {"trips": TRIPS, "time": TIMES, "walk": ("items", "nanoseconds"), "job": ("over", "host", "seconds"),
          "sections": ("sections", "read", "replace"), "mailbox": ("items", "seconds"), "fact": ("what", "value", "unit")}


def number(text):
    try:
        return int(text)
    except ValueError:
        try:
            return float(text)
        except ValueError:
            return text


def read(folder):
    rows = {what: [] for what in FIELDS}
    for name in sorted(glob.glob(os.path.join(folder, "*.tsv"))):
        with open(name, encoding="utf-8") as file:
            for line in file:
                what, *values = line.rstrip("\r\n").split("\t")
                rows[what].append(dict(zip(FIELDS[what], map(number, values), strict=True)))
    return rows


def best_times(rows):
    """Of several runs' rows for a member, the smallest time of each way: other programs of the machine only add."""
    best = {}
    for row in rows:
        kept = best.setdefault((row["where"], name_of(row)), dict(row))
        for way in ("vtable", "invoke", "client", "looking_up"):
            kept[way] = min(kept[way], row[way])
    return list(best.values())


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        processors = [line.split(":")[1].strip() for line in file if line.startswith("model name")]
    with open("/etc/os-release", encoding="utf-8") as file:
        system = dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)["PRETTY_NAME"].strip('"')
    return {"processors": f"{len(processors)} x {processors[0]}", "system": system, "kernel": platform.release(),
            "wine": os.popen("wine --version").read().strip(), "load_before": number(os.environ.get("BENCH_LOAD", "0"))}


class Limits:
    def __init__(self):
        self.rows = []

    def at_most(self, what, value, limit, unit=""):
        holds = value <= limit
        self.rows.append({"what": what, "value": value, "limit": limit, "unit": unit, "holds": holds})


def name_of(row):
    return f"{row['class']}.{row['member']}" + (f" ({row['variant']})" if row["variant"] else "")


def trips(row, use):
    return [row[f"{use}_{what}"] for what in ("look_ups", "questions", "calls")]


def print_trips(rows, limits):
    print("\nTrips to the office: names looked up + questions for types + calls, as the office counts them. \"No types\": the third use")
    print("where the application publishes none. Members that begin a session ask its root object each time.\n")
    print(f"{'member':52} {'first use':>10} {'third use':>10} {'no types':>10} {'script':>9} {'least':>6}")
    untyped = {name_of(row): row for row in rows if row["where"] == "untyped"}
    inside = [row for row in rows if row["where"] == "inside"]
    for row in inside:
        cells = ["{}+{}+{}".format(*trips(row, use)) for use in ("first", "third")]
        cells.append("{}+{}+{}".format(*trips(untyped[name_of(row)], "third")))
        script = trips(row, "script")
        print(f"{name_of(row):52} {cells[0]:>10} {cells[1]:>10} {cells[2]:>10} {script[0]}+{script[2]:<6} {trips(row, 'least')[2]:>6}")
    total = {use: sum(sum(trips(row, use)) for row in inside) for use in ("first", "third", "script", "least")}
    print(f"{'all members, trips':52} {total['first']:>10} {total['third']:>10} "
          f"{sum(sum(trips(row, 'third')) for row in untyped.values()):>10} {total['script']:>9} {total['least']:>6}")
    for row in rows:
        if row["where"] == "untyped":
            continue
        asked = row["third_look_ups"] + row["third_questions"]
        where = "in-process" if row["where"] == "inside" else "another process"
        # A session begins with a look at what the application publishes now; a handful, whatever the member does.
        limit = 8 if row["begins_session"] else 0
        limits.at_most(f"{name_of(row)}: look-ups and questions on the third use, {where}", asked, limit)
        limits.at_most(f"{name_of(row)}: calls beyond those that are needed, {where}",
                       row["third_calls"] - row["least_calls"], 0)


def print_times(rows, where, title, unit, limits):
    chosen = [row for row in rows if row["where"] == where]
    scale = {"us": 1e3, "ms": 1e6}[unit]
    print(f"\n{title}\n")
    print(f"{'member':52} {'steps':>5} {'client':>9} {'look-ups':>9} {'vtable':>9} {'Invoke':>9} {'vtable/client':>14} "
          f"{'Invoke/client':>14}")

    def line(name, row, note=""):
        print(f"{name:52} {row['steps']:5} " + " ".join(f"{row[way] / scale:9.2f}" for way in
              ("client", "looking_up", "vtable", "invoke")) +
              f" {row['vtable'] / row['client']:14.3f} {row['invoke'] / row['client']:14.3f}  {note}")

    summed = {way: 0 for way in ("steps", "client", "looking_up", "vtable", "invoke")}
    for row in chosen:
        line(name_of(row), row, f"(not in the sum: {row['own_cost']})" if row["own_cost"] else "")
        if not row["own_cost"]:
            for way in summed:
                summed[way] += row[way]
    line("sum", summed)
    own = {way: (summed[way] - summed["client"]) / summed["steps"] for way in ("vtable", "invoke")}
    if where == "inside":
        print(f"The library's own time a step: {own['vtable']:.0f} ns by vtable, {own['invoke']:.0f} ns by Invoke")
        limits.at_most("in-process, sum by vtable over the client", summed["vtable"] / summed["client"], 1.2)
        limits.at_most("in-process, sum by Invoke over the client", summed["invoke"] / summed["client"], 1.4)
        limits.at_most("in-process, the library's own time a step by vtable", own["vtable"], 100, "ns")
    else:
        for way in ("vtable", "invoke"):
            limits.at_most(f"another process, sum by {way} over the client", summed[way] / summed["client"], 1.1)
            limits.at_most(f"another process, sum by {way} over the client that looks up names",
                           summed[way] / summed["looking_up"], 0.7)
    return summed | {"own_time_a_step": own}


def print_job(rows, own_time, limits):
    """The best of each host's runs."""
    steps = 2 + 50 * 24 + 50 * 4 + 200 * 6 + 1  # as the table of trips has them; Search without BeginAtTop
    print("\nOne job of a script host in seconds: open, 50 searches, 50 replaces, 200 cells, save\n")
    print(f"{'over':28} {'ZORBWord':>9} {'same calls':>11} {'variables':>10} {'ZORBWord/same calls':>20} {'own share':>10}")
    for over, name in (("office", "the bench's own office"), ("bridge", "LibreOffice by the bridge")):
        best = {host: min(row["seconds"] for row in rows if (row["over"], row["host"]) == (over, host))
                for host in ("library", "calls", "variables")}
        ratio = best["library"] / best["calls"]
        share = steps * own_time * 1e-9 / best["library"]
        print(f"{name:28} {best['library']:9.2f} {best['calls']:11.2f} {best['variables']:10.2f} {ratio:20.3f} {share:10.2%}")
        if over == "office":
            limits.at_most("job of a script host: with ZORBWord over the same calls", ratio, 0.7)


def print_growth(rows, limits):
    print("\nA walk with GetFirstItem and GetNextItem, best of five, each item: " +
          ", ".join(f"{row['nanoseconds'] / 1e3:.2f} us of {row['items']:,}" for row in rows["walk"]))
    times = [row["nanoseconds"] for row in rows["walk"]]
    limits.at_most("walk: the slowest time an item over the fastest", max(times) / min(times), 1.2)
    for row in rows["mailbox"]:
        print(f"The same by the bridge, each item: {row['seconds'] / row['items'] * 1e6:.0f} us of {row['items']:,}")
    print("\nsections  ReadText(0, 0)  ReplaceHeaderFooter of each, over LibreOffice by the bridge, the better of two runs")
    best = [{what: min(row[what] for row in rows["sections"] if row["sections"] == count) for what in FIELDS["sections"]}
            for count in sorted({row["sections"] for row in rows["sections"]})]
    for row in best:
        print(f"{row['sections']:8}  {row['read']:12.3f} s  {row['replace']:12.3f} s")
    few, many = best[0], best[-1]
    for what in ("read", "replace"):
        # A fifth more than in proportion leaves room for a busy machine.
        limits.at_most(f"sections: {what}, four times the sections over one time", many[what] / few[what], 4.8)


def print_facts(rows, limits):
    print()
    for row in rows:
        print(f"{row['what']}: {row['value']:,.{0 if row['unit'] == 'bytes' else 1}f} {row['unit']}")
        if row["what"].startswith("memory"):
            limits.at_most(row["what"], row["value"], 1024, "bytes")


def main():
    folder = sys.argv[1]
    rows = read(folder)
    rows["time"] = best_times(rows["time"])
    limits = Limits()
    results = {"machine": machine()} | rows
    print("machine: " + ", ".join(f"{value}" for value in results["machine"].values()))
    print_trips(rows["trips"], limits)
    results["sums"] = {
        "inside": print_times(rows["time"], "inside", "Time a member in microseconds, over an office in the process whose "
                              "calls and look-ups take one microsecond", "us", limits),
        "outside": print_times(rows["time"], "outside", "Time a member in milliseconds, over an office in another process "
                               "that answers at once", "ms", limits)}
    print_job(rows["job"], results["sums"]["inside"]["own_time_a_step"]["invoke"], limits)
    print_growth(rows, limits)
    print_facts(rows["fact"], limits)
    results["limits"] = limits.rows
    with open(os.path.join(folder, "results.json"), "w", encoding="utf-8") as file:
        json.dump(results, file, indent=1)
    broken = [row for row in limits.rows if not row["holds"]]
    for row in broken:
        print(f"bench: {row['what']}: {row['value']:.4g}{row['unit'] and ' ' + row['unit']}, at most {row['limit']}", file=sys.stderr)
    print(f"\n{len(limits.rows) - len(broken)} of {len(limits.rows)} limits hold")
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
