# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""The actions that save something, as a user or an administrator does them.

A verb runs alone; lines are a script, which does in the core what the window does. before: what happens undisturbed
first, after a start: verbs as lists of words, scripts as tuples of lines; None: not even that, and there is no home.
opening: the lines of a script that are not tried yet. stages: the others in several parts, each of which leaves styles
that a crash may leave too. keeps: the files whose bytes of before last through any crash, in one file or another.
mayWait: what it does not finish the next start does.
"""

import dataclasses
import itertools
import shutil

import product

FIXTURES = "{tests}/scenarios/fixtures"
STYLE_FILE = "home:/Library/Preferences/Wordhaven/TarvoStyle2009.plist"
EDIT = ["style", "set", "1", "Opt1=2"]
CUT = '"<?xml version=\\"1.0\\"?><plist><dict><key>Style</key><arr"'
DAMAGE = (f"file write {STYLE_FILE} {CUT}",)
DAMAGED_SETTINGS = (f"file write home:/Library/Preferences/com.wordhaven.TarvoManager.plist {CUT}",)
OLD_SCRIPTS = tuple(f'file write "home:/Library/Scripts/Mail Scripts/TarvoEiwa/{name}" x' for name in ("one", "two"))
FORMER = (product.STYLES,)
BEGUN = "begun"  # the folder that a script makes when its opening is over
OTHER_PROGRAM = [f"file remove {STYLE_FILE}", f"file copy {FIXTURES}/root4.plist {STYLE_FILE}"]
TEKADO = ('file copy root:/Volumes/Tekado/Tekado.dat "root:/Library/Application Support/Wordhaven/TarvoEiwa/Tekado.dat"',)


@dataclasses.dataclass(frozen=True)
class Action:
    name: str
    verb: tuple = ()
    opening: tuple = ()
    stages: tuple = ()
    before: tuple = ()
    keeps: tuple = ()
    mayWait: bool = False

    def words(self):
        return list(self.verb) or product.SCRIPT

    def scripts(self):
        """The lines until the end of each stage; the last ones are the whole, and look at what was told."""
        begun = [*self.opening, f"file folder root:/{BEGUN}"] if self.opening else []
        scripts = [begun + list(itertools.chain(*self.stages[:count + 1])) for count in range(max(1, len(self.stages)))]
        return [*scripts[:-1], scripts[-1] + ["log", "show noticeTable"]]


def verb(name, *words, **more):
    return Action(name, words, **more)


def script(name, opening, *stages, **more):
    return Action(name, (), tuple(opening), stages, **more)


CHOICE = ["choose stylePopup 1"]
OPTION = ["choose ejEditPopup 1", "choose ejOption2Popup 2"]
NEW_NAME = ["press StyleNameEditButton", "type styleNameField 見出し", "press snOKButton"]
NEW_DICTIONARY = ["tab ejListTab UDTab", "press ejUDNewButton", "type NewDicNameField 製品", "press NewDicOKButton"]
SERVICE = ["start", "engine online", f"engine holds {FIXTURES}/engine-five.plist P9"]
QUIT = ["quit"]

ACTIONS = (
    # Styles.
    verb("set an option", "--engine", "none", *EDIT),
    verb("set an option, with the engine of this machine", *EDIT, before=(["style", "set", "2", "Opt2=0"],)),
    verb("rename a style", "style", "rename", "1", "特許 Patents"),
    verb("choose a style for a tool", "style", "use", "2", "QB"),
    verb("add a dictionary", "dictionary", "add", "1", "ej", "Physics.TRet"),
    verb("remove a dictionary", "dictionary", "remove", "1", "ej", "特許.TRet"),
    verb("move a dictionary", "dictionary", "move", "1", "ej", "特許.TRet", "2"),
    verb("import a style", "style", "import", "1", f"{FIXTURES}/import/valid.whstyle", keeps=FORMER),
    verb("export a style", "style", "export", "1", "{home}/Documents/exported.whstyle"),
    verb("export over an older file", "style", "export", "2", "{home}/Documents/exported.whstyle",
         before=(["style", "export", "1", "{home}/Documents/exported.whstyle"],)),
    verb("restore all styles", "restore", "{earlier}", before=(EDIT, ["style", "use", "3", "QB"]), keeps=FORMER),
    verb("restore one style", "restore", "{earlier}", "1", before=(EDIT,), keeps=FORMER),
    verb("begin again over a damaged file", "--reseed", *EDIT, before=(EDIT, DAMAGE), keeps=FORMER),
    verb("restore over a damaged file", "restore", "{earlier}", before=(EDIT, DAMAGE), keeps=FORMER),
    script("edit, undo and redo", ["start", *CHOICE], OPTION, ["menu undoMenu"], ["menu redoMenu"]),
    script("quit after an edit and a moved window", ["start", *CHOICE, *OPTION], ["move myWindow 40 50"], QUIT),
    script("edit over another program's change", ["start", *CHOICE, *OTHER_PROGRAM], OPTION, keeps=FORMER),
    script("join with another program's change", ["start", *CHOICE, *OTHER_PROGRAM, *OPTION, "answer alert 1"], ["press noticeButton"], keeps=FORMER),
    script("take the styles of the service", SERVICE, ["post SendPlistNoti"], keeps=FORMER),
    script("take the styles of the service and edit", SERVICE, ["post SendPlistNoti"], CHOICE, OPTION),
    verb("take the styles of the engine of this machine", "engine", "pull", before=(EDIT, ["--engine", "none", "style", "set", "2", "Opt1=1"], ('default LastUpdate "older"',)), keeps=FORMER),
    script("rename in the window", ["start", *CHOICE], NEW_NAME),
    # Starts.
    script("first start in an empty home", (), ["start"], QUIT, before=None, mayWait=True),
    script("start over a damaged file", (), ["start"], QUIT, before=(EDIT, DAMAGE), keeps=FORMER),
    script("start with new medical data", (), ["start"], QUIT, before=(TEKADO,), mayWait=True),
    verb("edit with new medical data", "--engine", "none", *EDIT, before=(TEKADO,), mayWait=True),
    script("start that clears old scripts away", (), ["start"], QUIT, before=(OLD_SCRIPTS,)),
    # Dictionaries.
    verb("make a user dictionary", "new", "ej", "user", "社内 Terms"),
    verb("make a memory", "new", "je", "memory", "Projects 2010"),
    script("make a dictionary in the window", ["start"], NEW_DICTIONARY),
    # Add-ins.
    verb("install the macro of Word", "addin", "install", "Word 2011"),
    verb("install the macro of Excel", "addin", "install", "Excel 2011"),
    verb("install the macro of PowerPoint", "addin", "install", "PowerPoint 2011"),
    verb("remove a macro", "addin", "remove", "Word 2011", before=(["addin", "install", "Word 2011"],)),
    verb("install scripts of Mail", "addin", "install", "Mail"),
    verb("install scripts of Outlook", "addin", "install", "Outlook 2011"),
    verb("remove scripts of Mail", "addin", "remove", "Mail", before=(["addin", "install", "Mail"],)),
    verb("search another Office", "addin", "search", "{root}/Volumes/Data/Office 2011"),
    verb("write the tool list", "tool-list", "tTX8"),
    verb("write the tool list over damaged settings", "tool-list", "tTX8", before=(DAMAGED_SETTINGS,), keeps=(product.SETTINGS,)),
)


def prepare(product_, action):
    """Makes the scratch folder what it is before the action."""
    product.install(product_.folder)
    if action.before is None:
        return
    for each in (product.START_AND_QUIT, *action.before):
        done = product_.run(each) if isinstance(each, list) else product_.run(product.SCRIPT, each)
        if done.status != 0:
            raise RuntimeError(f"{action.name}: {each} ended with {done.status}: {done.err}")
