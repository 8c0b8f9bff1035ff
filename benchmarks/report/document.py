"""Writes tables into a document, between the two lines that mark where each belongs. The text around them is its author's."""

import re

END = "<!-- end of figures -->"
MARK = re.compile(r"^<!-- figures: (?P<name>[^\n]*?) -->\n.*?^" + re.escape(END) + "$", re.MULTILINE | re.DOTALL)


def filled(text, tables):
    """The document with the tables, by name. A place without a table keeps what it has; a table without a place is an error."""
    places = [mark.group("name") for mark in MARK.finditer(text)]
    homeless = [name for name in tables if name not in places]
    if homeless:
        raise ValueError("the document has no place for: " + ", ".join(homeless))

    def fresh(mark):
        name = mark.group("name")
        return f"<!-- figures: {name} -->\n{tables[name]}\n{END}" if name in tables else mark.group()

    return MARK.sub(fresh, text)
