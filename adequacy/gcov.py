"""What gcov tells of sources, as JSON: one document a source, compressed by some versions."""
import gzip
import json
import os
import subprocess


def told(files, folder, tree, *options):
    """By source or header, seen from the tree: its lines, as gcov has them. `files` are notes or counts in `folder`."""
    text = subprocess.run(["gcov", "--json-format", "--stdout", *options, *files], cwd=folder, capture_output=True).stdout
    if text[:1] != b"{":
        text = gzip.decompress(text)
    for document in text.decode().splitlines():
        for part in json.loads(document)["files"]:
            yield os.path.relpath(os.path.realpath(part["file"]), tree), part["lines"]
