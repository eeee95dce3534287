#!/usr/bin/env python3
"""Fills a fixed-disk run's Launch List for the start-up benchmark: all five
groups at 32,767 items, with every File, Folder and Program target made on
the disk, and the Set and COMData records counting them.

Usage: seed_lists.py DRIVE_C_FOLDER full|spread|ten
  full    each group's targets in one folder (C:\\Bench\\Files\\f00000.txt ...)
  spread  the targets spread over 1,024 folders of 32 each
  ten     ten items a group, their targets in one folder, as a yardstick
  program 32,767 programs and no other item: the most the Launch List pane
          opens on, since it adds up the five counts in 16 bits
"""
import os
import sys

ITEMS = 32767
SPREAD_FOLDERS = 1024
DATA = os.path.join("Morvane", "Morvane Apps", "Quillstart")


def write_lines(path, lines):
    with open(path, "wb") as out:
        out.write("".join(line + "\r\n" for line in lines).encode("latin-1"))


def target(mode, group, i):
    kinds = {0: ("Files", "f%05d.txt"), 1: ("Folders", "d%05d"), 2: ("Programs", "p%05d.exe")}
    folder, name = kinds[group]
    parts = ["Bench-" + mode, folder]
    if mode == "spread":
        parts.append("s%04d" % (i % SPREAD_FOLDERS))
    parts.append(name % i)
    return parts


def main():
    drive_c, mode = sys.argv[1], sys.argv[2]
    if mode not in ("full", "spread", "ten", "program"):
        sys.exit("seed_lists: mode is full, spread, ten or program")
    counts = [10] * 5 if mode == "ten" else [0, 0, ITEMS, 0, 0] if mode == "program" else [ITEMS] * 5
    data = os.path.join(drive_c, DATA)
    os.makedirs(data, exist_ok=True)
    files = ["ListFile.Morvane", "ListFold.Morvane", "ListProg.Morvane", "ListMail.Morvane", "ListWeb.Morvane"]
    for group, file_name in enumerate(files):
        if counts[group] == 0:
            continue
        records = []
        for i in range(counts[group]):
            if group < 3:
                parts = target(mode, group, i)
                host = os.path.join(drive_c, *parts)
                if group == 1:
                    os.makedirs(host, exist_ok=True)
                else:
                    os.makedirs(os.path.dirname(host), exist_ok=True)
                    if not os.path.exists(host):
                        open(host, "wb").close()
                path = "C:\\" + "\\".join(parts)
            elif group == 3:
                path = "m%05d@mail.example" % i
            else:
                path = "http://site%05d.example/" % i
            # Names sort as the program writes them: ascending, case ignored.
            records.append('"Item%05d","%s"' % (i, path))
        write_lines(os.path.join(data, file_name), records)
    last = [str(count - 1) for count in counts]
    write_lines(os.path.join(data, "Set.Morvane"), ["10", "57", "0", "0", '""'] + last[0:3] + ["8", "2", "0"])
    write_lines(os.path.join(data, "COMData.Morvane"), ["2", last[3], last[4]])


if __name__ == "__main__":
    main()
