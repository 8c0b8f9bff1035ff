#!/usr/bin/env python3
"""check_schema.py SCHEMA FILE...: a line for each file, in their order: "valid", or "invalid: " and what is wrong.

Ends with 1 if a file is invalid, and with 2 and a line on standard error if nothing could be checked."""

import json
import sys

try:
    from jsonschema import Draft202012Validator
except ImportError as error:
    sys.stderr.write(f"check_schema: {error}; it is in Debian's python3-jsonschema\n")
    sys.exit(2)

MOST_ERRORS = 5


def refuse_constant(name):
    raise ValueError(f"{name} is no JSON")


def document(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file, parse_constant=refuse_constant)


def tell(error):
    where = "/".join(map(str, error.absolute_path)) or "root"
    return f"{where}: {error.validator or 'unwanted'}: {error.message[:200]}"


def verdict(validator, path):
    try:
        told = sorted(map(tell, validator.iter_errors(document(path))))
    except ValueError as error:
        told = [str(error)]
    return "invalid: " + "; ".join(told[:MOST_ERRORS]) if told else "valid"


def main(schema_path, *paths):
    schema = document(schema_path)
    Draft202012Validator.check_schema(schema)
    verdicts = [verdict(Draft202012Validator(schema), path) for path in paths]
    print("\n".join(verdicts))
    return 0 if verdicts and all(text == "valid" for text in verdicts) else 1


if __name__ == "__main__":
    try:
        sys.exit(main(*sys.argv[1:]))
    except Exception as error:  # a broken schema, a missing file: no verdict on any document
        sys.stderr.write(f"check_schema: {type(error).__name__}: {error}\n")
        sys.exit(2)
