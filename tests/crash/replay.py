# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""What recorded system calls do to a folder.

A call that names something in the folder and is not known here is an error, so that nothing passes unseen.
"""

import os

from model import AT_THE_WORKING_FOLDER, File, Model, Open
from system_calls import RecordingError

STANDARD_OUTPUT = 1
READING = frozenset(
    "access close_range execve faccessat faccessat2 fadvise64 fchown fchownat fcntl fgetxattr flistxattr flock fstat fstatfs getcwd"
    " getdents64 getxattr ioctl lgetxattr listxattr llistxattr lstat newfstatat poll pread64 readlink readlinkat stat statfs statx"
    " utimensat".split())


class Replay(Model):
    """Follows calls. touching: (how many steps before it, call) for each that concerns the folder, failed ones too; said:
    how many steps were before each output."""

    def follow(self, calls):
        for call in calls:
            concerns = self.concerns(call)
            if concerns:
                self.touching.append((len(self.steps), call))
            if call.result is None or call.error is not None:
                continue
            handler = getattr(self, "do_" + call.name, None)
            if handler is not None:
                handler(call, *call.arguments)
            elif call.name not in READING and concerns:
                raise RecordingError(f"{call.name} works on the folder, and what it does there is not known")
        return self

    def concerns(self, call):
        """Whether an argument is a path or a descriptor in the folder."""
        for position, word in enumerate(call.arguments):
            if isinstance(word, bytes) and self.is_below(os.fsdecode(word)):
                return True
            isDescriptor = isinstance(word, int) and (position == 0 or call.name == "copy_file_range" and position == 2)
            if isDescriptor and self.number_of(word) is not None:
                return True
        return False

    # Descriptors.

    def do_openat(self, call, base, path, flags, mode=0):
        words = flags.split("|") if isinstance(flags, str) else []
        place = self.place(base, path, "O_NOFOLLOW" not in words)
        above = self.open[base].path if base in self.open else ""
        self.open[call.result] = Open(None, os.path.join(above or "", os.fsdecode(path)))
        if place is None:
            return
        number = self.at(place)
        if "O_TMPFILE" in words:
            number = self.new(File("file", mode & ~0o022))
        elif number is None:
            number = self.new(File("file", mode & ~0o022))
            self.step(call, names={place: number})
        elif "O_TRUNC" in words:
            self.step(call, content={number: b""})
        self.open[call.result] = Open(number)
        if "O_APPEND" in words:
            self.open[call.result].offset = len(self.files[number].data)

    def do_open(self, call, path, flags, mode=0):
        self.do_openat(call, AT_THE_WORKING_FOLDER, path, flags, mode)

    def do_creat(self, call, path, mode):
        self.do_openat(call, AT_THE_WORKING_FOLDER, path, "O_WRONLY|O_CREAT|O_TRUNC", mode)

    def do_close(self, _call, descriptor):
        self.open.pop(descriptor, None)

    def do_dup(self, call, descriptor, *_rest):
        self.open.pop(call.result, None)
        if descriptor in self.open:
            self.open[call.result] = self.open[descriptor]

    do_dup2 = do_dup3 = do_dup

    def do_fcntl(self, call, descriptor, command, *_rest):
        if str(command).startswith("F_DUPFD"):
            self.do_dup(call, descriptor)

    def do_lseek(self, call, descriptor, *_rest):
        if descriptor in self.open:
            self.open[descriptor].offset = call.result

    def do_read(self, call, descriptor, *_rest):
        if descriptor in self.open:
            self.open[descriptor].offset += call.result

    def do_mmap(self, _call, _address, _size, protection, flags, descriptor, _offset):
        if self.number_of(descriptor) is not None and "PROT_WRITE" in protection and "MAP_SHARED" in flags:
            raise RecordingError("a file is changed through memory")

    # Content.

    def do_write(self, call, descriptor, data, _size):
        number = self.number_of(descriptor)
        if descriptor == STANDARD_OUTPUT:
            self.said.append(len(self.steps))
        if number is not None:
            self.put(call, number, data[:call.result], self.open[descriptor].offset)
            self.open[descriptor].offset += call.result

    def do_pwrite64(self, call, descriptor, data, _size, offset):
        if self.number_of(descriptor) is not None:
            self.put(call, self.number_of(descriptor), data[:call.result], offset)

    def do_copy_file_range(self, call, source, source_offset, target, target_offset, *_rest):
        if self.number_of(target) is None:
            return
        if (source_offset, target_offset) != ("NULL", "NULL"):
            raise RecordingError("copy_file_range with positions of its own")
        begin, end = self.open[source].offset, self.open[source].offset + call.result
        self.open[source].offset = end
        if call.result > 0:
            self.put(call, self.number_of(target), self.bytes_of(self.open[source])[begin:end], self.open[target].offset)
            self.open[target].offset += call.result

    def bytes_of(self, opened):
        if opened.number is not None:
            return self.files[opened.number].data
        with open(opened.path, "rb") as file:
            return file.read()

    def do_ftruncate(self, call, descriptor, size):
        number = self.number_of(descriptor)
        if number is not None:
            self.step(call, content={number: self.files[number].data[:size].ljust(size, b"\0")})

    def do_fsync(self, call, descriptor):
        if self.number_of(descriptor) is not None:
            self.step(call, synced=(self.number_of(descriptor),))

    do_fdatasync = do_fsync

    # Names.

    def do_mkdirat(self, call, base, path, mode):
        place = self.place(base, path)
        if place is not None:
            self.step(call, names={place: self.new(File("folder", mode & ~0o022))})

    def do_mkdir(self, call, path, mode):
        self.do_mkdirat(call, AT_THE_WORKING_FOLDER, path, mode)

    def do_symlinkat(self, call, target, base, path):
        place = self.place(base, path)
        if place is not None:
            self.step(call, names={place: self.new(File("link", 0o777, target))})

    def do_symlink(self, call, target, path):
        self.do_symlinkat(call, target, AT_THE_WORKING_FOLDER, path)

    def do_unlinkat(self, call, base, path, _flags):
        place = self.place(base, path)
        if place is not None:
            self.step(call, names={place: None})

    def do_unlink(self, call, path):
        self.do_unlinkat(call, AT_THE_WORKING_FOLDER, path, 0)

    do_rmdir = do_unlink

    def do_linkat(self, call, base, path, new_base, new_path, flags):
        target = self.place(new_base, new_path)
        if target is None:
            return
        opened = os.fsdecode(path).removeprefix("/proc/self/fd/")
        number = self.number_of(int(opened)) if opened.isdigit() else self.at(self.place(base, path, "AT_SYMLINK_FOLLOW" in str(flags)))
        self.step(call, names={target: number})

    def do_link(self, call, path, new_path):
        self.do_linkat(call, AT_THE_WORKING_FOLDER, path, AT_THE_WORKING_FOLDER, new_path, 0)

    def do_renameat2(self, call, base, path, new_base, new_path, flags):
        source, target = self.place(base, path), self.place(new_base, new_path)
        if source is None and target is None:
            return
        if source is None or target is None or flags not in (0, "RENAME_NOREPLACE"):
            raise RecordingError(f"a renaming of another kind: {flags}")
        if source != target:
            self.step(call, names={source: None, target: self.names[source]})

    def do_renameat(self, call, base, path, new_base, new_path):
        self.do_renameat2(call, base, path, new_base, new_path, 0)

    def do_rename(self, call, path, new_path):
        self.do_renameat2(call, AT_THE_WORKING_FOLDER, path, AT_THE_WORKING_FOLDER, new_path, 0)

    # What is known about a file.

    def give(self, call, number, mode=None, attribute=None):
        if number is None:
            return
        if mode is not None:
            self.files[number].mode = mode
        if attribute is not None:
            self.files[number].attributes |= attribute
        self.step(call, about=(number,))

    def do_fchmod(self, call, descriptor, mode):
        self.give(call, self.number_of(descriptor), mode)

    def do_fchmodat(self, call, base, path, mode, *_flags):
        place = self.place(base, path, True)
        self.give(call, None if place is None else self.at(place), mode)

    def do_chmod(self, call, path, mode):
        self.do_fchmodat(call, AT_THE_WORKING_FOLDER, path, mode)

    def do_fsetxattr(self, call, descriptor, name, value, *_rest):
        self.give(call, self.number_of(descriptor), attribute={os.fsdecode(name): value})

    def do_setxattr(self, call, path, name, value, *_rest):
        place = self.place(AT_THE_WORKING_FOLDER, path, True)
        self.give(call, None if place is None else self.at(place), attribute={os.fsdecode(name): value})
