#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Drives ddbsql by its standard input and output, as other programs do."""

import json
import pathlib
import sqlite3
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(1)

CUSTOMERS = {
    "table": "Customers",
    "columns": [["Name", "Text", 50], ["N", "Long"], ["Ok", "Yes/No"], ["Rate", "Double"], ["Fee", "Currency"],
                ["Since", "Date"], ["Notes", "Memo"], ["Plain", "Text"]],
    "indexes": [["ByNumber", ["N"], True]],
}
ANN = {"add": "Customers", "values": {"Name": "Ann", "N": 1, "Ok": True, "Rate": 2.5, "Fee": 1.25,
                                      "Since": "2024-02-29"}}


class DdbSqlTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = pathlib.Path(folder.name) / "cards.ddb"

    def Ask(self, *requests, expectedExit=0):
        lines = "".join((r if isinstance(r, str) else json.dumps(r)) + "\n" for r in requests)
        run = subprocess.run([PROGRAM, str(self.path)], input=lines, capture_output=True, text=True, timeout=60)
        self.assertEqual(run.returncode, expectedExit, run.stderr)
        return [json.loads(line) for line in run.stdout.splitlines()]

    def test_Table_AllKinds_StandInTheFileAsDeclared(self):
        self.assertEqual(self.Ask(CUSTOMERS), [{"ok": True}])
        with sqlite3.connect(self.path) as file:
            types = [(row[1], row[2]) for row in file.execute("PRAGMA table_info(Customers)")]
        self.assertEqual(types, [("Name", "TEXT(50)"), ("N", "INTEGER"), ("Ok", "YESNO"), ("Rate", "DOUBLE"),
                                 ("Fee", "CURRENCY"), ("Since", "DATE"), ("Notes", "LONGTEXT"),
                                 ("Plain", "TEXT(255)")])

    def test_Add_OneRow_ComesBackBySelect(self):
        answers = self.Ask(CUSTOMERS, ANN, {"sql": "SELECT Name, N, Ok, Rate, Fee, Since, Notes FROM Customers"})
        self.assertEqual(answers[1], {"ok": True})
        self.assertEqual(answers[2], {"columns": ["Name", "N", "Ok", "Rate", "Fee", "Since", "Notes"],
                                      "rows": [["Ann", 1, True, 2.5, 1.25, "2024-02-29", None]]})

    def test_Sql_Action_TellsTheNumberOfRows(self):
        answers = self.Ask(CUSTOMERS, ANN, {"sql": "UPDATE Customers SET Notes = 'x' WHERE N = 1"},
                           {"sql": "SELECT Notes FROM Customers"}, {"sql": "Delete * from Customers"})
        self.assertEqual(answers[2], {"changed": 1})
        self.assertEqual(answers[3]["rows"], [["x"]])
        self.assertEqual(answers[4], {"changed": 1})

    def test_Add_SecondOfAUniqueKey_Fails3022AndGoesOn(self):
        answers = self.Ask(CUSTOMERS, ANN, ANN, {"sql": "SELECT N FROM Customers"})
        self.assertEqual(answers[2]["error"], 3022)
        self.assertTrue(answers[2]["text"])
        self.assertEqual(answers[3]["rows"], [[1]])

    def test_Query_Stored_ComesBackInTheEnginesForm(self):
        answers = self.Ask(CUSTOMERS, {"query": "All&", "sql": "select [Name],[N] from  Customers where N  > 0"},
                           {"query": "all&"}, {"query": "none"})
        self.assertEqual(answers[1], {"ok": True})
        self.assertEqual(answers[2], {"sql": "SELECT [Name], [N]\r\nFROM Customers\r\nWHERE N  > 0;\r\n"})
        self.assertEqual(answers[3]["error"], 3265)

    def test_Like_Pairs_AreTrueFalseOrNull(self):
        answers = self.Ask({"like": ["a*", "Anna"]}, {"like": ["a?", "Anna"]}, {"like": ["a*", None]},
                           {"like": ["1#", 12]})
        self.assertEqual([answer["value"] for answer in answers], [True, False, None, True])

    def test_Line_NoJson_IsAFailureAndTheNextGoesOn(self):
        answers = self.Ask("{nonsense", "", "[1]", "{}", {"sql": 5}, {"like": ["*", "x"]})
        self.assertEqual(len(answers), 6)
        for answer in answers[:5]:
            self.assertEqual(answer["error"], 3001)
        self.assertEqual(answers[5], {"value": True})

    def test_Open_NoDatabase_WritesTheFailureAndEnds(self):
        self.path.write_text("This is a plain text file, long enough to have a header of its own, but none of ours.")
        answers = self.Ask({"like": ["*", "x"]}, expectedExit=1)
        self.assertEqual([answer["error"] for answer in answers], [3343])

    def test_Lines_OneByOne_AreAnsweredAtOnce(self):
        with subprocess.Popen([PROGRAM, str(self.path)], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              text=True, bufsize=1) as run:
            for text in ("x", "y"):
                run.stdin.write(json.dumps({"like": ["x", text]}) + "\n")
                self.assertEqual(json.loads(run.stdout.readline()), {"value": text == "x"})
            run.stdin.close()
            self.assertEqual(run.wait(60), 0)


if __name__ == "__main__":
    unittest.main()
