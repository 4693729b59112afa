#!/usr/bin/env python3
"""Makes packages that a careless program would stumble over.

    hostile_packages.py FOLDER COUNT SEED

FOLDER is where the game keeps its packages (its baseq3). COUNT packages are
put into it, each kind of mischief in turn, the same for the same seed. The
bots in them are called "b" and the number of the package, some with a letter
behind; every 40th package is an honest one, its bot "honest" and the number.
Paths that try to get out aim at files called "escaped" and at the folders
above FOLDER.
"""

import pathlib
import random
import struct
import sys
import zlib

MIB = 1 << 20

CHARACTERISTICS = b"""#include "chars.h"
skill 1
{
\tCHARACTERISTIC_NAME\t\t\t"%s"
\tCHARACTERISTIC_GENDER\t\t\t"male"
\tCHARACTERISTIC_ATTACK_SKILL\t\t0.5
\tCHARACTERISTIC_VIEW_MAXCHANGE\t\t180
}
skill 4
{
\tCHARACTERISTIC_ATTACK_SKILL\t\t0.75
}
skill 5
{
\tCHARACTERISTIC_ATTACK_SKILL\t\t1
}
"""
CHAT = b"""chat "%s"
{
\t#include "teamplay.h"
\ttype "game_enter"
\t{
\t\tHELLO5;
\t\t"hi ", 0, ", ready?";
\t}
\ttype "kill_insult"
\t{
\t\tTAUNT0;
\t}
}
"""
WEAPONS = b'#include "inv.h"\n#define W_GAUNTLET\t\t50\n#define W_RAILGUN\t\t80\n'
ITEMS = b'#include "inv.h"\n#define FS_HEALTH\t\t40\n#define FS_ARMOR\t\t70\n'
DESCRIPTION = b"{\nname\t\t%s\nmodel\t\tsarge/red\naifile\tbots/%s_c.c\n}\n"

# A red picture of 2 x 2 points.
ICON = bytes([0, 0, 2] + [0] * 9 + [2, 0, 2, 0, 24, 0]) + b"\0\0\xff" * 4


class Entry:
    """A file in the archive. `fields` is what the table of contents says of
    it, `local` what stands in front of its data; `said` overrides both."""

    def __init__(self, name, data=b"", said=None, system=0, attributes=0):
        self.name = name if isinstance(name, bytes) else name.encode("latin-1")
        method = 8 if len(data) > 64 else 0
        self.packed = deflate(data) if method else data
        self.fields = {"flags": 0, "method": method, "crc": zlib.crc32(data),
                       "packed": len(self.packed), "size": len(data),
                       "name": self.name, **(said or {})}
        self.local = dict(self.fields)
        self.system, self.attributes = system, attributes


def deflate(data):
    packer = zlib.compressobj(6, zlib.DEFLATED, -15)
    return packer.compress(data) + packer.flush()


def middle(fields):
    """What both headers of an entry have in common."""
    return struct.pack("<HHHHIIIH", fields["flags"], fields["method"], 0, 33,
                       fields["crc"], fields["packed"], fields["size"],
                       len(fields["name"]) & 0xFFFF)


def build(entries, **said):
    """The archive. `said` overrides what its end record says; `before`,
    `between` and `behind` are bytes around its parts."""
    body = bytearray(said.get("before", b""))
    directory = bytearray()
    for entry in entries:
        offset = len(body)
        fields = entry.fields
        body += b"PK\3\4" + struct.pack("<H", 20) + middle(entry.local)
        body += struct.pack("<H", 0) + entry.local["name"] + entry.packed
        directory += b"PK\1\2" + struct.pack("<BBH", 20, entry.system, 20)
        directory += middle(fields)
        directory += struct.pack("<HHHHII", 0, 0, 0, 0, entry.attributes,
                                 fields.get("offset", offset))
        directory += fields["name"]
    body += said.get("between", b"")
    offset = len(body)
    body += directory + said.get("behind", b"")
    count = said.get("count", len(entries)) & 0xFFFF
    comment = said.get("comment", b"")
    body += b"PK\5\6" + struct.pack(
        "<HHHHIIH", 0, 0, count, count, said.get("size", len(directory)),
        said.get("offset", offset), said.get("comment_size", len(comment)))
    return bytes(body + comment)


def bot(name, **instead):
    """The five files of a bot by their suffix; some put in another's place."""
    name = name.encode("latin-1") if isinstance(name, str) else name
    files = {b"_c.c": CHARACTERISTICS % name, b"_w.c": WEAPONS,
             b"_i.c": ITEMS, b"_t.c": CHAT % name,
             b".bot": DESCRIPTION % (name, name)}
    for suffix, data in instead.items():
        files[{"c": b"_c.c", "w": b"_w.c", "i": b"_i.c", "t": b"_t.c",
               "bot": b".bot"}[suffix]] = data
    return [Entry((b"scripts/" if suffix == b".bot" else b"botfiles/bots/")
                  + name + suffix, data) for suffix, data in files.items()]


def icon(model, skin="default", data=ICON, **more):
    return Entry(f"models/players/{model}/icon_{skin}.tga", data, **more)


class Maker:
    """One method for each kind of mischief. Each gets a name for its bot and
    gives the bytes of a package."""

    def __init__(self, folder, seed):
        self.folder = folder
        self.random = random.Random(seed)
        self.bombs_made = 0
        self.zeros = None

    # Names.

    def way_out(self):
        above = self.folder.parent.parent.resolve().as_posix()
        depth = self.random.randrange(1, 12)
        return self.random.choice([
            "../" * depth, "..\\" * depth, above + "/", "//" + above + "/",
            "C:\\", "C:/", "c:", "\\\\server\\share\\", "./../", "/",
            "....//....//", "%2e%2e/", "~/", "..", ".",
            "botfiles/bots/" + "../" * depth,
            "botfiles/bots/..\\" * depth])

    def paths_that_climb(self, name):
        out = self.way_out()
        entries = bot(f"{out}{name}") + bot(f"../{name}k") + bot(f"..\\{name}m")
        for entry in bot("escaped"):
            for prefix in (out, f"botfiles/bots/{out}", f"scripts/{out}"):
                bare = entry.name.rpartition(b"/")[2].decode()
                entries.append(Entry(prefix + bare, b"escaped"))
        entries += [icon(f"{out}escaped"), icon("escaped", out + "escaped"),
                    Entry(f"{out}models/players/x/icon_escaped.tga", ICON)]
        return build(entries)

    def backslashes(self, name):
        entries = bot(name)
        for entry in entries:
            entry.fields["name"] = entry.local["name"] = \
                entry.name.replace(b"/", b"\\")
        return build(entries + [icon("back\\slash"), *bot(f"sub/{name}k"),
                                *bot(f"sub\\{name}m")])

    def duplicated_names(self, name):
        upper = [Entry(entry.name.upper(), b"X" * 500) for entry in bot(name)]
        entries = bot(name, c=b"skill 1\n") + bot(name) + upper
        self.random.shuffle(entries)
        return build(entries * self.random.randrange(1, 4))

    def odd_names(self, name):
        letters = bytes(self.random.randrange(128, 256) for _ in range(8))
        names = [b"", b"/", b".", b"..", b"//", b"botfiles/bots/_c.c",
                 b"botfiles/bots//_c.c", b"botfiles/bots/ _c.c",
                 b"scripts/.bot", name.encode() + b"\0_c.c",
                 b"botfiles/bots/" + name.encode() + b"\0x_c.c",
                 b"botfiles/bots/\x1b]0;" + name.encode() + b"\7_c.c",
                 b"botfiles/bots/" + name.encode() + b"\r\nevil_c.c",
                 b"botfiles/bots/--help_c.c", b"botfiles/bots/$(id)_c.c",
                 b"botfiles/bots/`id`;|&<>*?_c.c", b"botfiles/bots/\"_c.c",
                 b"botfiles/bots/,,\"\"_c.c", b"models/players/\"/icon_x.tga",
                 b"models/players/\x1b[2J/icon_\x07.tga", b"/bots.txt",
                 b"models/players//icon_.tga", b"models/players/icon_x.tga",
                 b"botfiles/bots/con_c.c", b"botfiles/bots/nul.x_c.c"]
        flags = self.random.choice([0, 0x800])
        entries = [Entry(each, CHARACTERISTICS % b"odd",
                         said={"flags": flags}) for each in names]
        return build(entries + bot(letters + name.encode()) +
                     bot(name.encode() + b"\x81\x1b\x7f"))

    def markup(self, name):
        """Names that would show as something else in a rich text."""
        model = f"<u>hostile{name}"
        return build(bot(model, t=CHAT % b"<u>hostile" + b'type "death_bfg"\n'
                         b'{\n"<u>hostile<img src=/dev/zero>";\n}\n',
                         bot=DESCRIPTION.replace(b"sarge", b"<u>hostile")
                         % (b"^1<u>hostile", b"x"),
                         w=WEAPONS + b"#define <u>hostile <u>hostile\n")
                     + [icon(model, "<u>hostile")])

    def long_names(self, name):
        length = self.random.choice([200, 230, 250, 256, 1000, 4096, 60000])
        return build(bot(name + "l" * length) + [
            icon("m" * length), icon("m", "s" * length),
            Entry("d/" * (length // 2) + "x"), Entry("q" * 65535)])

    def folders_as_files(self, name):
        entries = bot(name)
        return build(entries + [Entry(entry.name + b"/") for entry in entries]
                     + [icon("a/b/c/d"), Entry("botfiles/bots/")])

    def symbolic_links(self, name):
        target = self.random.choice([
            b"/etc/passwd", b"../../../escaped", b"/", b".", b"/dev/zero",
            self.folder.parent.parent.resolve().as_posix().encode()])
        entries = bot(name)
        for entry in entries[:self.random.randrange(1, 6)]:
            entry.system = 3
            entry.attributes = self.random.choice([0o120777, 0o060666,
                                                   0o010666]) << 16
            entry.packed = target
            for fields in (entry.fields, entry.local):
                fields.update(method=0, size=len(target), packed=len(target),
                              crc=zlib.crc32(target))
        return build([Entry("botfiles", target, system=3,
                            attributes=0o120777 << 16), *entries])

    # Sizes and sums.

    BOMBS = (  # Which file, its beginning, what fills it, to how many MiB.
        ("t", b'type "game_enter"\n{\n', b'"a";\n', 4),
        ("t", b'type "game_enter"\n{\n', b'{{TAUNT}} ", 0, "', 4),
        ("t", b"", b'type "kill_insult"\n{\n', 4),
        ("c", b"", b"skill 1\nCHARACTERISTIC_AIM_SKILL\n", 4),
        ("c", b"", b"\0", 200), ("w", b"", b"\0", 65), ("i", b"", b"\n", 63),
        ("t", b'type "game_enter"\n{\n', b'"a";\n', 63),
        ("t", b'type "game_enter"\n{\n', b"a\n", 63),
        ("t", b"", b'type "kill_insult"\n{\n', 63),
        ("t", b'type "game_enter"\n{\n"', b'{{TAUNT1}} ", 0, "', 63),
        ("t", b'type "game_enter"\n{\n', b'", ', 63),
        ("c", b"skill 1\n{\n", b'CHARACTERISTIC_AIM_SKILL ""\n', 63),
        ("c", b"", b"skill 1\n", 63), ("c", b"skill 1\n", b"1", 63),
        ("c", b"skill 1\nCHARACTERISTIC_NAME ", b'"', 63),
        ("bot", b"", b"model a/b\n", 63), ("bot", b"name ", b"x", 63),
        ("w", b"", b"#define W_GAUNTLET 1e9\n", 63), ("i", b"", b"#", 63))

    def bomb(self, name):
        bomb = self.BOMBS[self.bombs_made % len(self.BOMBS)]
        self.bombs_made += 1
        suffix, beginning, filler, mib = bomb
        data = beginning + filler * (mib * MIB // len(filler))
        return build(bot(name, **{suffix: data}))

    def lying_bomb(self, name):
        if not self.zeros:
            self.zeros = deflate(bytes(100 * MIB))
        entry = self.random.choice(entries := bot(name))
        entry.packed = self.zeros
        size = self.random.choice([0, 100, 64 * MIB, 0xFFFFFFFF])
        for fields in (entry.fields, entry.local):
            fields.update(method=8, packed=len(self.zeros), size=size)
        return build(entries)

    def wrong_sizes(self, name):
        entries = bot(name) + [icon("wrong")]
        for entry in entries:
            fields = self.random.choice([entry.fields, entry.local])
            key = self.random.choice(["size", "packed"])
            fields[key] = self.random.choice([
                0, 1, fields[key] + 1, max(0, fields[key] - 1), 0x7FFFFFFF,
                0xFFFFFFFE, 0xFFFFFFFF, 64 * MIB, 64 * MIB + 1])
        return build(entries)

    def wrong_sums(self, name):
        entries = bot(name)
        for entry in self.random.sample(entries, 2):
            entry.fields["crc"] ^= 1 << self.random.randrange(32)
        return build(entries)

    def odd_methods(self, name):
        entries = bot(name)
        for entry in entries[:self.random.randrange(1, 6)]:
            method = self.random.choice([1, 6, 8, 9, 12, 14, 93, 95, 98, 99,
                                         0xFFFF])
            flags = self.random.choice([0, 1, 8, 0x20, 0x40, 0x41, 0x2000,
                                        0xFFFF])
            entry.fields.update(method=method, flags=flags)
            entry.local.update(method=method, flags=flags)
        return build(entries)

    # The table of contents.

    def broken_directory(self, name):
        entries = bot(name) + [icon("broken")]
        size = sum(46 + len(entry.name) for entry in entries)
        huge = self.random.choice([0x7FFFFFFF, 0xFFFFFFFE, 0xFFFFFFFF, 1 << 24])
        said = self.random.choice([
            {"count": 0}, {"count": 1}, {"count": 65535}, {"count": 5},
            {"size": 0}, {"size": size - 1}, {"size": size + 1},
            {"size": huge}, {"offset": huge}, {"offset": 0}, {"offset": 3},
            {"offset": huge, "size": huge}, {"comment_size": 65535},
            {"comment": b"PK\5\6" * 5000}, {"comment": b"PK\5\6" + b"\0" * 18},
            {"before": b"MZ" + b"x" * 999}, {"between": b"PK\1\2" * 100},
            {"behind": b"PK\6\6" * 30}, {"comment": b"c" * 65535}])
        return build(entries, **said)

    def overlapping_entries(self, name):
        """Many entries in the table of contents with the same bytes."""
        entries = bot(name)
        for entry in entries[1:]:
            entry.fields["offset"] = 0
        copies = [Entry(f"botfiles/bots/{name}{number}_x.c",
                        said={"offset": self.random.randrange(300)})
                  for number in range(200)]
        return build(entries + copies)

    def long_end_record(self, name):
        wrong = self.random.choice([0, 1, 1 << 32, (1 << 63) - 1, (1 << 64) - 1])
        record = b"PK\6\6" + struct.pack(
            "<QHHIIQQQQ", self.random.choice([44, 0, wrong]), 45, 45, 0, 0,
            *(self.random.choice([wrong, 6, 400]) for _ in range(4)))
        locator = b"PK\6\7" + struct.pack(
            "<IQI", 0, self.random.choice([wrong, 0, 1500]), 1)
        entries = bot(name)
        return build(entries, behind=record + locator,
                     count=self.random.choice([0xFFFF, 5]),
                     offset=self.random.choice([0xFFFFFFFF, 0]),
                     size=self.random.choice([0xFFFFFFFF, 300]))

    def many_entries(self, name):
        count = self.random.choice([2000, 5000, 20000])
        kind = self.random.randrange(3)
        entries = [Entry([f"models/players/m{number % 50}/icon_s{number}.tga",
                          f"textures/{number}",
                          f"x{number}/bots.txt"][kind])
                   for number in range(count)]
        return build(entries + bot(name))

    def cut_or_flipped(self, name):
        data = bytearray(build(bot(name) + [icon("cut")]))
        kind = self.random.randrange(3)
        if kind == 0:
            return bytes(data[:self.random.randrange(len(data))])
        if kind == 1:
            return bytes(data[self.random.randrange(len(data)):])
        for _ in range(self.random.randrange(1, 30)):
            data[self.random.randrange(len(data))] = self.random.randrange(256)
        return bytes(data)

    def no_archive(self, _name):
        return self.random.choice([
            b"", b"PK", b"PK\5\6", b"PK\5\6" + b"\0" * 18, b"PK\3\4" * 500,
            self.random.randbytes(5000), b"\x1f\x8b\x08" + b"\0" * 50,
            b"PK\5\6" + b"\xff" * 18])

    # What is in the files.

    def long_lines(self, name):
        piece = self.random.choice([
            b"x", b" ", b"\t", b'"a", ', b"/", b"9", b'\\"', b"{{", b"0.0",
            b"^1", b"TAUNT", b"\xff", b", "])
        text = piece * (2 * MIB // len(piece))
        return build(bot(
            name, c=b"skill 1\n{\nCHARACTERISTIC_AIM_SKILL " + text + b"\n}\n",
            t=b'chat "x"\n{\ntype "game_enter"\n{\n"' + text + b'";\n}\n',
            w=b"#define W_GAUNTLET " + text, i=b"#define " + text,
            bot=b"{\nname " + text + b"\nmodel a" + text + b"/b\n"))

    def odd_values(self, name):
        values = ["1e999", "-1e999", "nan", "inf", "0x7fffffff", "1" * 5000,
                  "0." + "3" * 5000, "-", ".", "\"", "\"\"", "99999999999",
                  "-99999999999", "1.1.1", "//", "+", "\0", "\x1a", "1,5"]
        keys = ["AIM_SKILL", "REACTIONTIME", "NAME", "GENDER", "CHAT_FILE",
                "VIEW_MAXCHANGE", "WEAPONWEIGHTS", "ATTACK_SKILL"]
        text = "".join(
            f"skill {self.random.choice(['1', '4', '5', '-1', '', '1e9'])}\n{{\n"
            + "".join(f"CHARACTERISTIC_{self.random.choice(keys)}\t"
                      f"{self.random.choice(values)}\n" for _ in range(40))
            for _ in range(30))
        lines = "".join(f"#define W_GAUNTLET {value}\n#define FS_HEALTH {value}"
                        f"\n#define W_{value}\n" for value in values)
        arena = "".join(f"{key} {value}\n" for value in values
                        for key in ("name", "model", "color1", "bot_arena"))
        return build(bot(name, c=text.encode("latin-1"),
                         w=lines.encode("latin-1"), i=lines.encode("latin-1"),
                         bot=arena.encode("latin-1")))

    def odd_chats(self, name):
        pieces = ['"', '""', "{{", "}}", "{{TAUNT9999999999}}", "TAUNT9999999",
                  ";", ",", " 0", ", 5, ", '", 99, "', "//", "/*", "*/", "{",
                  "}", "~", "~~", "type", '"game_enter"', '"no_such_type"',
                  "level_end_", "\\", '\\"', "\t", "\r", "\n", "\0", "\xff",
                  "chat", "#include", "#define x x", "random_insult", "^"]
        text = "".join(self.random.choice(pieces) for _ in range(20000))
        return build(bot(name, t=b'chat "x"\n{\ntype "game_enter"\n{\n' +
                         text.encode("latin-1")))

    def noise_in_files(self, name):
        changed = {}
        for entry, suffix in zip(bot(name), ("c", "w", "i", "t", "bot")):
            data = bytearray(zlib.decompress(entry.packed, -15)
                             if entry.fields["method"] else entry.packed)
            for _ in range(self.random.randrange(1, 40)):
                place = self.random.randrange(len(data))
                if self.random.random() < 0.5:
                    data[place] = self.random.randrange(256)
                else:
                    data[place:place] = data[:self.random.randrange(200)]
            changed[suffix] = bytes(data)
        return build(bot(name, **changed))

    def odd_pictures(self, name):
        header = bytearray(ICON[:18])
        kind = self.random.randrange(5)
        if kind == 0:
            header[12:16] = b"\xff\xff\xff\xff"
        elif kind == 1:
            header[2], header[12:16] = 10, b"\0\4\0\4"
        elif kind == 2:
            header[0], header[1], header[5:8] = 255, 1, b"\xff\xff\x20"
        elif kind == 3:
            header[16] = self.random.choice([0, 1, 7, 15, 33, 255])
        else:
            header = bytearray(self.random.randbytes(18))
        data = bytes(header) + self.random.randbytes(self.random.randrange(99))
        return build(bot(name) + [icon(f"picture{name}", data=data),
                                  icon(f"picture{name}", "text", b"no picture")])

    KINDS = (paths_that_climb, backslashes, duplicated_names, odd_names, markup,
             long_names, folders_as_files, symbolic_links, wrong_sizes,
             wrong_sums, odd_methods, broken_directory, overlapping_entries,
             long_end_record, cut_or_flipped, no_archive, odd_values, odd_chats,
             noise_in_files, odd_pictures)
    # These take long to make or to read, so there are fewer of them.
    HEAVY_KINDS = (bomb, many_entries, bomb, long_lines, lying_bomb)

    def make(self, number):
        if number % 40 == 39:
            return "honest", build(bot(f"honest{number}") +
                                   [icon(f"honest{number}")])
        heavy, rest = divmod(number, 20)
        if rest == 0:
            kind = self.HEAVY_KINDS[heavy % len(self.HEAVY_KINDS)]
        else:
            kind = self.KINDS[(number - heavy) % len(self.KINDS)]
        return kind.__name__, kind


def file_name(number, kind):
    """Mostly plain, now and then as odd as what is inside."""
    plain = f"{number:04}-{kind}"
    odd = {7: plain + "-\xe4\u20ac", 17: plain + "-\u65e5\u672c",
           27: plain + "-\"quoted\", 'name' $(id)", 33: plain + "-\x1b[31m",
           37: plain + "-" + "n" * 200}
    return odd.get(number % 50, plain) + ".pk3"


def make_packages(folder, count, seed):
    maker = Maker(folder, seed)
    for number in range(count):
        kind, made = maker.make(number)
        data = made if isinstance(made, bytes) else made(maker, f"b{number}")
        (folder / file_name(number, kind)).write_bytes(data)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    make_packages(pathlib.Path(sys.argv[1]), int(sys.argv[2]),
                  int(sys.argv[3]))
