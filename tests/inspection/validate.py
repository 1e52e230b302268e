"""Validates documents against a JSON Schema: validate.py SCHEMA DOCUMENTS

DOCUMENTS holds one JSON text a line; for each the answer is a line, "valid" or "invalid: " and the first reason.
"""
import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
with open(sys.argv[2], encoding="utf-8") as lines:
    for line in lines:
        error = next(validator.iter_errors(json.loads(line)), None)
        if error is None:
            print("valid")
        else:
            print("invalid:", "/".join(str(step) for step in error.absolute_path), error.message[:200].replace("\n", " "))
