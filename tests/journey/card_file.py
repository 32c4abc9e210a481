# SPDX-License-Identifier: MIT
"""A card file as anybody sees it who opens it with the plain sqlite3 shell."""

import json
import subprocess

from stage import JourneyError

KINDS = {"Text": "TEXT(255)", "Memo": "LONGTEXT", "Long": "INTEGER", "Double": "DOUBLE", "Currency": "CURRENCY",
         "Yes/No": "YESNO", "Date": "DATE"}

# The tables that every card file has, whatever its design: their columns by kind.
FIXED_TABLES = {
    "Captions": "Caption Text, Num Long",
    "WebAddress": "Index Long, Name Text, defText Text, defNum Long",
    "tOptions": "txtKey TEXT(40), tVal TEXT(40)",
    "Telefon": "Index Long, Date Date, Time Date, Collaborator Text, Cooperation Text, DesTok Memo, Agent Text",
    "Goods": "Index Long, Barcod Text, Type Text, Name Text, Description Memo, Price Currency, Discount Text, "
             "Another Memo, Image Memo, PriceDiler Currency, DiscountClient Text",
    "TypeGoods": "Type Text",
    "Meeting": "Index Long, Date Date, Time Date, Place Text, Adress Text, TelephPl Text, Collaborator Text, Agent Text, "
               "Define Text, Description Memo, Name Text, Post Text, Tel1 Text, Tel2 Text, Pelephon Text, OrderMeet Date, "
               "OrderTime Date, PathFoto Memo",
    "TabProd": "ProdID Long, SugID Long, Query Text, Descrip Memo",
    "NotifyTable": "Collaborator Text, Date Date, Time Date, For Text, NotifyOrder Date, Memo Memo, NotifyDate Date, "
                   "QMemo Text",
    "PriceList": "Index Long, Year Long, NumbOf Long, FileName Memo, Date Date, Agent Text, Status Text",
    "TabSug": "SugID Long, Descrip Text, Pict Memo",
    "Agent": "Index Long, Name Text, Activ Yes/No, " + ", ".join(f"{number} Text" for number in range(1, 17))
             + ", Biografy Memo, PathFoto Text",
    "TCoop": "Type Text, Activ Yes/No",
    "TelCalls": "Index Long, Date Date, Time Date, Priority Long, Tel1 Text, Tel2 Text, Collaborator Text, Agent Text, "
                "Tok Memo, ActivTime Yes/No, DateOrder Date, NameFirm Text",
    "tArchiv": "Date Date, Program Text, File Text, Rem Memo, Index Long",
}


def expect(found, wanted, what):
    if found != wanted:
        raise JourneyError(f"{what}:\n  found  {found!r}\n  wanted {wanted!r}")


class CardFile:
    """Asks and changes a closed card file by the shell alone."""

    def __init__(self, path):
        self._path = path

    def _shell(self, statement, *options):
        done = subprocess.run(["sqlite3", *options, self._path, statement], capture_output=True, text=True, check=False)
        if done.returncode != 0 or done.stderr:
            raise JourneyError(f"sqlite3: {statement}: {done.stderr}")
        return done.stdout

    def rows(self, statement):
        return [tuple(row.values()) for row in json.loads(self._shell(statement, "-readonly", "-json") or "[]")]

    def change(self, statement):
        self._shell(statement)

    def is_sound(self):
        return self.rows("pragma integrity_check(1)") == [("ok",)]

    def tables(self):
        names = [name for (name,) in self.rows("select name from sqlite_schema where type = 'table'")]
        # What the engine keeps for itself begins with a dot, which no name of a user holds.
        return {name for name in names if not name.startswith(".")}

    def columns(self, table):
        quoted = table.replace("'", "''")
        return ", ".join(f"{name} {kind}" for name, kind in
                         self.rows(f"select name, type from pragma_table_info('{quoted}') order by cid"))

    def expect_tables(self, designed):
        """Every table that a card file has, with its columns and declared kinds; `designed` tells those of the design."""
        wanted = {**FIXED_TABLES, **designed}
        expect(self.tables(), set(wanted), "the tables")
        for table, columns in wanted.items():
            declared = ", ".join(f"{name} {KINDS.get(kind, kind)}" for name, kind in
                                 (column.rsplit(" ", 1) for column in columns.split(", ")))
            expect(self.columns(table), declared, f"the columns of {table}")

    def expect_rows(self, statement, wanted):
        expect(self.rows(statement), wanted, statement)
