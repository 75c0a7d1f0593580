#!/usr/bin/env python3
"""Writes SQL of a given size for the benchmarks: half of it INSERT statements with many rows, half of it definitions
and queries. With --dump it is INSERT statements of thousands of rows alone, as the dumps of databases hold them, which
PostgreSQL and MySQL both read. The same size and seed give the same bytes.

usage: generate_sql.py SIZE [--seed N] [--dump]      SIZE in bytes, or with the suffix K or M
"""

import argparse
import random
import sys

NAMES = ["orders", "customers", "products", "invoices", "payments", "addresses", "audit_log", "price_history"]
COLUMNS = ["id", "customer_id", "name", "total", "placed_at", "status", "note", "quantity", "unit_price", "code"]
WORDS = ["north", "light", "winter", "o''brien", "copper", "garden", "silent", "harbour", "été", "blue & green"]
TYPES = ["integer", "bigint", "numeric(12,2)", "varchar(80)", "text", "timestamp with time zone", "boolean", "date"]


def text(rng):
    return "'" + " ".join(rng.choice(WORDS) for _ in range(rng.randint(1, 4))) + "'"


def insert(rng, least=20, most=200):
    table = rng.choice(NAMES)
    columns = COLUMNS[: rng.randint(4, len(COLUMNS))]
    rows = []
    for _ in range(rng.randint(least, most)):
        row = [str(rng.randint(1, 999999)), str(rng.randint(1, 9999)), text(rng)]
        while len(row) < len(columns):
            row.append(
                rng.choice(
                    [
                        f"{rng.randint(0, 99999)}.{rng.randint(0, 99):02d}",
                        f"'20{rng.randint(10, 29)}-{rng.randint(1, 12):02d}-{rng.randint(1, 28):02d} 12:30:00'",
                        "NULL",
                        text(rng),
                        "true",
                        "DEFAULT",
                    ]
                )
            )
        rows.append("(" + ", ".join(row) + ")")
    return f"INSERT INTO {table} ({', '.join(columns)}) VALUES\n" + ",\n".join(rows) + ";\n"


def dumped_insert(rng):
    return insert(rng, 2000, 8000)


def create_table(rng):
    lines = [f"    {COLUMNS[0]} {rng.choice(TYPES)} PRIMARY KEY"]
    for column in COLUMNS[1:]:
        extra = rng.choice(["", " NOT NULL", f" DEFAULT {rng.randint(0, 9)}", f" CHECK ({column} > 0)"])
        lines.append(f"    {column} {rng.choice(TYPES)}{extra}")
    return f"-- table {rng.randint(1, 999)}\nCREATE TABLE {rng.choice(NAMES)}_{rng.randint(1, 999)} (\n" + ",\n".join(lines) + "\n);\n"


def condition(rng):
    column = rng.choice(COLUMNS)
    return rng.choice(
        [
            f"a.{column} = b.{column}",
            f"a.{column} > {rng.randint(1, 1000)}",
            f"a.{column} BETWEEN {rng.randint(1, 10)} AND {rng.randint(11, 99)}",
            f"lower(b.{column}) LIKE {text(rng)}",
            f"b.{column} IS NOT NULL",
            f"a.{column} IN ({rng.randint(1, 9)}, {rng.randint(10, 99)}, {rng.randint(100, 999)})",
        ]
    )


def query(rng):
    where = " AND ".join(condition(rng) for _ in range(rng.randint(1, 4)))
    return (
        f"SELECT a.{rng.choice(COLUMNS)}, count(*) AS n, sum(a.{rng.choice(COLUMNS)} * 1.19) AS total\n"
        f"FROM {rng.choice(NAMES)} a\n"
        f"    LEFT JOIN {rng.choice(NAMES)} b ON {condition(rng)}\n"
        f"WHERE {where}\n"
        f"GROUP BY a.{rng.choice(COLUMNS)}\nORDER BY total DESC\nLIMIT {rng.randint(1, 100)};\n"
    )


def update(rng):
    return f"UPDATE {rng.choice(NAMES)} SET {rng.choice(COLUMNS)} = {text(rng)} WHERE id = {rng.randint(1, 99999)};\n"


def index(rng):
    return f"CREATE INDEX ix_{rng.randint(1, 99999)} ON {rng.choice(NAMES)} ({rng.choice(COLUMNS)}, {rng.choice(COLUMNS)});\n"


def comment(rng):
    return f"/* {' '.join(rng.choice(WORDS) for _ in range(12))} */\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("size")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--dump", action="store_true")
    arguments = parser.parse_args()
    units = {"K": 1000, "M": 1000000}
    size = arguments.size
    wanted = int(size[:-1]) * units[size[-1]] if size[-1] in units else int(size)

    rng = random.Random(arguments.seed)
    others = [create_table, query, query, update, index, comment]
    written = inserts = 0
    out = sys.stdout.buffer
    while written < wanted:
        isInsert = arguments.dump or inserts * 2 <= written
        make = dumped_insert if arguments.dump else insert
        statement = (make if isInsert else rng.choice(others))(rng).encode()
        out.write(statement)
        written += len(statement)
        inserts += len(statement) if isInsert else 0


if __name__ == "__main__":
    main()
