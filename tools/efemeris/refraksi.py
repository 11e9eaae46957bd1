"""Writes data/Refraksi.csv: the refraction of a body seen at a height, one row a whole degree
from two degrees below the horizon to the zenith.

The refraction in minutes of arc is R = 1 / tan(h + 7.31 / (h + 4.4)), h in degrees: the
usual formula for the air at 1010 hPa and 10 degrees Celsius, whose value at the horizon is the
34.5' that the reckoning of sunset takes. Near the zenith the formula dips a hair below zero;
those rows are 0. Minutes are rounded to two decimals.

The reckoning reads the last row whose height, without its sign, is not below the hilal's,
and interpolates towards the next row: so the rows above the horizon run downwards from the
zenith to 0, one degree apart, and the rows below the horizon stand first, where they never
shadow a row above it. A height below the horizon then reads the rows 1 and 0 and extrapolates.

    python3 refraksi.py            write the table
    python3 refraksi.py --verify   fail unless the table is what this writes
"""
import math
import os
import sys

KELUAR = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "data", "Refraksi.csv")
ATAS, BAWAH = 90, -2


def refraksi(h):
    r = 1 / math.tan(math.radians(h + 7.31 / (h + 4.4)))
    return max(r, 0.0)


def teks():
    baris = ["h,Refraksi"]
    for h in list(range(BAWAH, 0)) + list(range(ATAS, -1, -1)):
        baris.append(f"{h},{refraksi(h):.2f}")
    return "\n".join(baris) + "\n"


def main():
    t = teks()
    if "--verify" in sys.argv[1:]:
        with open(KELUAR, encoding="utf-8", newline="") as fh:
            if fh.read() != t:
                print("Refraksi.csv is not what the generator writes", file=sys.stderr)
                return 1
        return 0
    with open(KELUAR, "w", encoding="utf-8", newline="") as fh:
        fh.write(t)
    return 0


if __name__ == "__main__":
    sys.exit(main())
