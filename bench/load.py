#!/usr/bin/env python3
"""Writes the rows of a loaded working database as INSERT statements, one transaction a notice.

Usage: load.py DATABASE OUTPUT.sql
The statements carry the journal and the keys that the program works with, so that the sqlite3 shell does the same work.
"""
import sqlite3
import sys

CHILDREN = ["proc_ntc_hist", "fmtv_coord", "fmtv_rmks", "fmtv_op_prd", "fmtv_art5_target", "fmtv_ant_hgt",
            "fmtv_ant_diag"]


def literal(value):
    if value is None:
        return "NULL"
    if isinstance(value, str):
        return "'" + value.replace("'", "''") + "'"
    return repr(value)


def write_rows(out, database, table, condition, key):
    cursor = database.execute(f"SELECT * FROM {table} WHERE {condition}", (key,))
    columns = ", ".join(column[0] for column in cursor.description)
    for row in cursor:
        filled = [(name, value) for name, value in zip(columns.split(", "), row) if value is not None]
        names = ", ".join(name for name, _ in filled)
        out.write(f"INSERT INTO {table} ({names}) VALUES ({', '.join(literal(value) for _, value in filled)});\n")


def main():
    database = sqlite3.connect(sys.argv[1])
    with open(sys.argv[2], "w", encoding="utf-8") as out:
        out.write("PRAGMA foreign_keys = ON;\nPRAGMA journal_mode = WAL;\nPRAGMA synchronous = NORMAL;\n")
        keys = [row[0] for row in database.execute("SELECT vornakey FROM fmtv_vorna ORDER BY vornakey")]
        contours = [row[0] for row in database.execute("SELECT contourkey FROM lmz_contour ORDER BY contourkey")]
        for key in contours:
            out.write("BEGIN IMMEDIATE;\nUPDATE fmtv_keys SET contourkey = contourkey + 1;\n")
            write_rows(out, database, "lmz_contour", "contourkey = ?", key)
            write_rows(out, database, "lmz_contour_pt", "contourkey = ?", key)
            out.write("COMMIT;\n")
        for key in keys:
            out.write("BEGIN IMMEDIATE;\nUPDATE fmtv_keys SET vornakey = vornakey + 1;\n")
            write_rows(out, database, "fmtv_vorna", "vornakey = ?", key)
            for table in CHILDREN:
                write_rows(out, database, table, "vornakey = ?", key)
            write_rows(out, database, "lmz_allotment", "vornakey = ?", key)
            write_rows(out, database, "lmz_sub_area",
                       "allotkey IN (SELECT allotkey FROM lmz_allotment WHERE vornakey = ?)", key)
            out.write("COMMIT;\n")


main()
