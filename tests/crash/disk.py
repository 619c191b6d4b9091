# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""What lies below a folder, as a value: looked at, and laid out again.

Owners, times and the identity of two names of one file are not part of it.
"""

import collections
import os
import shutil
import stat

Node = collections.namedtuple("Node", "kind mode data attributes")
"""kind: "file", "folder" or "link"; data: of a file its bytes, of a link where it leads; attributes: (name, value)..."""

TEMPORARY = ".tarvo-"


def is_temporary(path):
    return any(part.startswith(TEMPORARY) for part in path.split("/"))


def above(path):
    return path.rpartition("/")[0]


def attributes_of(path):
    return tuple(sorted((name, os.getxattr(path, name, follow_symlinks=False)) for name in os.listxattr(path, follow_symlinks=False)))


def node_at(path):
    status = os.lstat(path)
    mode = stat.S_IMODE(status.st_mode)
    if stat.S_ISLNK(status.st_mode):
        return Node("link", 0o777, os.readlink(os.fsencode(path)), ())
    if stat.S_ISDIR(status.st_mode):
        return Node("folder", mode, b"", attributes_of(path))
    with open(path, "rb") as file:
        return Node("file", mode, file.read(), attributes_of(path))


def look(folder):
    """{path: Node} of all that lies in the folder; the folder itself is ""."""
    tree, waiting = {}, [""]
    while waiting:
        path = waiting.pop()
        whole = os.path.join(folder, path) if path else str(folder)
        tree[path] = node_at(whole)
        if tree[path].kind == "folder":
            waiting += [os.path.join(path, name) for name in os.listdir(whole)]
    return tree


def same_files(folder, tree):
    """{path: number}: equal numbers for the names of one file."""
    return {path: os.lstat(os.path.join(folder, path) if path else folder).st_ino for path in tree}


def remove(path):
    if os.path.isdir(path) and not os.path.islink(path):
        shutil.rmtree(path)
    else:
        os.unlink(path)


def make(path, node):
    if node.kind == "link":
        os.symlink(node.data, os.fsencode(path))
        return
    if node.kind == "folder":
        os.mkdir(path)
    else:
        with open(path, "wb") as file:
            file.write(node.data)
    for name, value in node.attributes:
        os.setxattr(path, name, value)
    os.chmod(path, node.mode)


def lay_out(folder, tree):
    """Makes the folder hold the tree, with as little work as what lies there allows."""
    present = look(folder) if os.path.isdir(folder) else {}
    for path in sorted(present, key=len, reverse=True):
        whole = os.path.join(folder, path) if path else folder
        if present[path] != tree.get(path) and not (path in tree and present[path].kind == tree[path].kind == "folder"):
            if os.path.lexists(whole):
                remove(whole)
    for path in sorted(tree, key=len):
        whole = os.path.join(folder, path) if path else folder
        node = tree[path]
        if not os.path.lexists(whole):
            make(whole, node)
        elif present.get(path) != node:
            os.chmod(whole, node.mode)
