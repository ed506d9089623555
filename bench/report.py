# SPDX-License-Identifier: MIT
"""The readable table on standard output."""

MEBIBYTE = 1 << 20
COLUMNS = ("pages/s", "CPU s", "peak MiB", "KiB/page")


def heading(text):
    print(f"\n{text}\n{'-' * len(text)}")


def document(title, pages, rows):
    """rows: name, is_peer and the four figures of COLUMNS; ratios are to the fastest peer."""
    heading(f"{title}, {pages} pages")
    peers = [row for row in rows if row["is_peer"]]
    fastest = max(peers, key=lambda row: row["figures"][0])
    print(f"{'':24}" + "".join(f"{column:>11}{'ratio':>7}" for column in COLUMNS))
    for row in rows:
        cells = "".join(cell(value, reference)
                        for value, reference in zip(row["figures"], fastest["figures"]))
        mark = " <- fastest peer" if row is fastest else ""
        print(f"{row['name']:24}{cells}{mark}")


def imports(rows):
    """Our rows: all but the writing of the book, which a peer has no counterpart of."""
    fastest = max(row["figures"][0] for row in rows if row["is_peer"])
    for row in rows:
        if row["is_ours"]:
            speed = row["import_pages_per_second"]
            print(f"  {row['name']}: import alone {speed:.1f} pages/s, {speed / fastest:.2f} of the"
                  " fastest peer")


def cell(value, reference):
    if not value:
        return f"{'-':>11}{'':>7}"
    ratio = f"{value / reference:.2f}" if reference else ""
    return f"{value:>11.1f}{ratio:>7}"


def sizes(rows):
    for row in rows:
        texts = ", ".join(f"{name} {value:.0f}" for name, value in row["kibibytes"].items())
        print(f"  KiB a page at our quality {row['level']}, the others set to {row['quality']}: {texts}")


def shares(rows):
    for row in rows:
        bare, ours = row["bare"], row["cpu_seconds"]
        print(f"  {row['name']}: bare drawing {bare['drawing']:.2f} s and encoding"
              f" {bare['encoding']:.2f} s are {100 * bare['total'] / ours:.0f} % of our {ours:.2f} s"
              " of processor time")


def encoder(kinds, factors, nearest):
    heading("Encoder: KiB of an A4 page by compression factor")
    print(f"{'':16}" + "".join(f"{factor:>9.2f}" for factor in factors))
    for kind in kinds:
        sizes_ = "".join(f"{nearest(kind, factor) / 1024:>9.1f}" for factor in factors)
        print(f"{kind.name:16}{sizes_}{complaint(kind)}")
    steps = len(kinds[0].bytes_by_factor)
    print(f"ok: at none of the {steps} settings that the factor leads to is the file smaller than at the"
          " one before,\n    or white paper anything but 255.")


def complaint(kind):
    notes = [f"{percent:.1f} % smaller at factor {factor}" for factor, percent in kind.falls]
    notes += [f"off white at factor {factor}" for factor in kind.off_white]
    return "  " + ("; ".join(notes) or "ok")


def targets(all_targets):
    heading("Targets")
    for target in all_targets:
        comparison = "at least" if target.at_least else "under"
        verdict = "met    " if target.met else "NOT MET"
        note = f"; {target.note}" if target.note else ""
        print(f"  {verdict}  {target.text}: {target.value:.3g} {target.unit}"
              f" ({comparison} {target.limit:g}{note})")
