#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Checks the shipped data: text tables, paths, drawings and the sample product. Usage: check_resources.py [REPOSITORY]

Prints each fault and ends with 1 when there is one.
"""
import pathlib
import plistlib
import re
import sys
import xml.etree.ElementTree

REPOSITORY = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2])
ROOT = REPOSITORY / "sample/root"
PRODUCT = ROOT / "Library/Application Support/Wordhaven/TarvoEiwa"
TOOLS = {"MG", "QB", "TX", "GD", "TMA", "NP", "ADD", "MAIL"}
SAME_IN_ALL_LANGUAGES = TOOLS | {"NomalStyle", "keyNameSeparator", "IgakuSougou", "Shinryouka", "Corwell", "Tekado",
                                 "NameETekado", "NameJTekado", "MailTarvoFolderName", "Outlook2011TarvoFolderName",
                                 "Entourage2004TarvoFolderName"}
ITEM_COUNTS = {"Opt1": 3, "Opt2": 3, "Opt3": 3, "TOpt1": 5, "TOpt2": 5, "TOpt3": 4, "TOpt5": 2}
IMAGES = {"SM32", "office32", "mail32", "MG", "QB", "TX", "GD32", "TMA", "NP", "UD", "TL", "EJTD16", "JETD16",
          "TarvoManager"}
faults = []


def expect(holds, fault):
    if not holds:
        faults.append(fault)


def read(path):
    try:
        return plistlib.loads(path.read_bytes())
    except Exception as error:  # whatever the parser throws is a fault of the file
        faults.append(f"{path.relative_to(REPOSITORY)}: {error}")
        return {}


def check_texts():
    folders = sorted((REPOSITORY / "resources").glob("*.lproj"))
    tables = {folder.stem: read(folder / "Localizable.strings") for folder in folders}
    expect(set(tables) == {"en", "ja"}, f"languages: {sorted(tables)}")
    every_key = set().union(*tables.values())
    for language, table in tables.items():
        expect(list(table) == sorted(table), f"{language}: keys are not in ascending order")
        for key in sorted(every_key):
            expect(table.get(key), f"{language}: no text for {key!r}")
        for key in sorted(SAME_IN_ALL_LANGUAGES):
            expect(table.get(key) == tables["en"].get(key), f"{language}: {key!r} differs from the other language")
        for key in sorted(TOOLS):
            expect(table.get(key) == key, f"{language}: the tool id {key!r} is translated")
        labels = [table.get(key) for key in ("EJTab", "JETab", "TDTab", "UDTab", "UTMATab")]
        expect(len(set(labels)) == len(labels), f"{language}: two tabs have one label")
        expect("%d" in table.get("Failed Instlation Contents", ""), f"{language}: the start failure names no code")
    return tables["en"]


def detailed_options(texts):
    """The values of each detailed option, from the keys of their item titles."""
    values = {}
    for key in texts:
        option, dot, value = key.partition(".")
        if dot and f"Label.{option}" in texts and option not in ITEM_COUNTS and value != "text":
            values.setdefault(option, set()).add(value)
    return values


def check_direction(name, record, options, details, dictionaries):
    for option in options:
        value = record.get(option)
        expect(type(value) is int and 0 <= value < ITEM_COUNTS[option], f"{name}: {option} is {value!r}")
    for option, values in details.items():
        expect(record.get(option) in values, f"{name}: {option} is {record.get(option)!r}")
    unknown = set(record) - set(options) - set(details) - {"TD", "TOpt4"}
    expect(not unknown, f"{name}: unknown keys {sorted(unknown)}")
    chosen = record.get("TD", [])
    expect(len(chosen) <= 8 and len(set(chosen)) == len(chosen), f"{name}: too many or repeated dictionaries")
    for dictionary in chosen:
        expect((dictionaries / dictionary).is_file(), f"{name}: no dictionary {dictionary!r}")


def check_styles(texts):
    root = read(PRODUCT / "TarvoStyle2009.plist")
    details = detailed_options(texts)
    expect(len(details) == 36, f"{len(details)} detailed options have titles, not 36")
    for option, count in ITEM_COUNTS.items():
        expect([f"{option}.{i}" in texts for i in range(count + 1)] == [True] * count + [False], f"items of {option}")
    styles = root.get("Style", [])
    names = [style.get("Name", "").casefold() for style in styles]
    expect(len(set(names)) == len(names), "two styles have one name")
    expect(names and names[0] == texts["NomalStyle"].casefold(), "the first style is not the standard style")
    dividers = [style.get("Name") == texts["keyNameSeparator"] for style in styles]
    expect(dividers.count(True) == 1, "there is not exactly one divider")
    for index, (style, divider) in enumerate(zip(styles, dividers)):
        name = style.get("Name")
        expect(style.get("ID") == index, f"{name}: ID is {style.get('ID')!r}")
        if divider:
            continue
        folder = PRODUCT / "TechDic"
        check_direction(f"{name} EJ", style["EJ"], ["Opt1", "Opt2", "Opt3"], {}, folder / "EJ")
        check_direction(f"{name} JE", style["JE"], ["TOpt1", "TOpt2", "TOpt3", "TOpt5"], details, folder / "JE")
        expect(style["JE"].get("TOpt4") is True, f"{name}: TOpt4 is not true")
    selection = root.get("Selection", {})
    expect(set(selection) == TOOLS, f"selection of {sorted(selection)}")
    for tool, index in selection.items():
        expect(0 <= index < len(styles) and not dividers[index], f"{tool} has chosen {index}")


def check_product():
    local = read(PRODUCT / "Local.strings")
    installed = {key: (ROOT / path.lstrip("/")).is_file() for key, path in local.items()}
    expect(installed == {"TechECorwell6": True, "TechJCorwell6": True, "TechETekado": False, "TechJTekado": False},
           f"medical dictionaries: {installed}")
    for direction in ("EJ", "JE"):
        names = [path.name for path in (PRODUCT / "TechDic" / direction).iterdir()]
        expect(len(names) >= 22, f"{len(names)} technical dictionaries {direction}")
    for path in ROOT.rglob("*.app"):
        expect(read(path / "Contents/Info.plist").get("CFBundlePackageType") == "APPL", f"{path.name}: no application")
    version = read(ROOT / "System/Library/CoreServices/SystemVersion.plist").get("ProductVersion")
    expect(version == "10.6.8", f"system version {version}")


def check_addins():
    """Each record leads to something that can be installed, and to an application of the sample where there is one."""
    records = read(REPOSITORY / "resources/DefaultAddin.plist").get("Office", [])
    keys = {"AppName", "AppCreator", "AppVersion", "AppPath", "InstallMacroName", "InstallFolderPath", "InstallFolderName"}
    found = 0
    for record in records:
        name = record.get("AppName")
        expect(set(record) == keys and all(type(value) is str for value in record.values()), f"{name}: wrong keys")
        item = REPOSITORY / "resources" / record["InstallMacroName"]
        is_mail = record["AppCreator"] in ("OPIM", "emal")
        expect(any(item.iterdir()) if is_mail and item.is_dir() else item.is_file(), f"{name}: nothing to install")
        expect(record["InstallFolderPath"].startswith("/") is not is_mail, f"{name}: {record['InstallFolderPath']}")
        information = ROOT / record["AppPath"].lstrip("/") / "Contents/Info.plist"
        if information.exists():
            found += 1
            expect(is_mail or read(information).get("CFBundleSignature") == record["AppCreator"], f"{name}: other creator")
    expect(len(records) == 12 and found == 9, f"{len(records)} records, {found} of them in the sample product")


def check_resources():
    paths = read(REPOSITORY / "resources/WordhavenPaths.plist")
    for key, value in paths.items():
        expect(not re.search(r"://", str(value)), f"WordhavenPaths.plist: {key} holds an address")
    tool = paths.get("tarvoPathGetAppleyPath.4", "").lstrip("/")
    expect((ROOT / tool / "Contents/Info.plist").is_file(), "WordhavenPaths.plist: tool 4 is not in the sample product")
    for template in ("EJStationery.eud2", "JEStationery.jud"):
        expect((REPOSITORY / "resources" / template).stat().st_size > 0, f"{template} is empty")
    drawings = {path.stem: path for path in (REPOSITORY / "resources/images").glob("*.svg")}
    expect(not IMAGES - set(drawings), f"missing drawings: {sorted(IMAGES - set(drawings))}")
    for path in drawings.values():
        try:
            xml.etree.ElementTree.parse(path)
        except xml.etree.ElementTree.ParseError as error:
            faults.append(f"{path.name}: {error}")


check_styles(check_texts())
check_product()
check_addins()
check_resources()
for fault in faults:
    print(fault)
sys.exit(1 if faults else 0)
