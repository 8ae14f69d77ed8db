"""The applications of the small Mac: who they are, how they look, and how much they are used.

Those that come with a Mac carry its identifiers, so that the starter profiles find them; all others are invented.
"""

import dataclasses

LIGHT, DARK = ("#FEFEFE", "#ECECEF"), ("#4B4B52", "#29292D")


@dataclasses.dataclass(frozen=True)
class App:
    name: str
    identifier: str
    ground: tuple  # the icon's colours, top and bottom
    letter: str  # the colour of its initial
    week: tuple = (0, 0, 0)  # minutes, switches and days of use among the five tracked days of the last week
    before: tuple = (0, 0, 0)  # the same among the fourteen days before it
    opened: tuple = ()  # further days ago on which it was opened, as the system recorded
    installed: bool = True


WHITE = "#FFFFFF"
HALCYON, PARLEY, CODEWAY = "org.example.halcyon", "org.example.parley", "org.example.codeway"
DRAFTBOARD, LEDGERLINE, HUDDLE = "org.example.draftboard", "org.example.ledgerline", "org.example.huddle"
AIRTIME, KEYRING = "org.example.airtime", "org.example.keyring"

APPS = [
    App("Mail", "com.apple.mail", ("#5AA2EE", "#2273D8"), WHITE, (137, 96, 5), (295, 235, 13), (5, 6, 22, 24, 25)),
    App("Calendar", "com.apple.iCal", LIGHT, "#CC2B24", (35, 52, 5), (90, 118, 12), (5, 22, 24, 27)),
    App("Maps", "com.apple.Maps", ("#5EE8A5", "#1FD07C"), WHITE, (), (14, 5, 2), (24, 33)),
    App("Halcyon", HALCYON, LIGHT, "#1C95C6", (426, 288, 5), (1016, 816, 14), (5, 6, 22, 23, 24, 25, 27)),
    App("Photos", "com.apple.Photos", LIGHT, "#C96F1E", (12, 4, 1), (64, 19, 4), (6, 26, 33, 40)),
    App("Music", "com.apple.Music", ("#F0566E", "#D3203F"), WHITE, (95, 22, 3), (310, 80, 9), (5, 6, 23, 27)),
    App("Notes", "com.apple.Notes", ("#EBC352", "#D5A01D"), WHITE, (48, 30, 4), (120, 71, 9), (22, 25, 31)),
    App("Parley", PARLEY, ("#9B55EC", "#731FD0"), WHITE, (218, 174, 5), (462, 538, 12), (22, 24)),
    App("Codeway", CODEWAY, DARK, "#7C93F2", (564, 312, 5), (624, 274, 9), (23, 25)),
    App("Books", "com.apple.iBooksX", ("#EE9450", "#D26A1C"), WHITE, (), (52, 9, 2), (26, 35, 41)),
    App("Messages", "com.apple.MobileSMS", ("#5BEA74", "#20CB46"), WHITE, (31, 25, 4), (88, 97, 11), (5, 6, 23)),
    App("Draftboard", DRAFTBOARD, ("#EF559E", "#D01F76"), WHITE, (182, 41, 4), (155, 47, 5), (28,)),
    App("Reminders", "com.apple.reminders", LIGHT, "#2450C4", (22, 34, 4), (40, 52, 8), (24, 26)),
    App("Chess", "com.apple.Chess", LIGHT, "#3A1CB0", (), (), (34, 48)),
    App("Terminal", "com.apple.Terminal", DARK, "#86EFA0", (114, 130, 5), (145, 171, 7), (25,)),
    App("Ledgerline", LEDGERLINE, ("#5CF07A", "#1FCC3C"), WHITE, (100, 38, 3), (45, 14, 2)),
    App("Huddle", HUDDLE, ("#54EBE4", "#21CFCB"), WHITE, (91, 14, 3), (94, 13, 5), (29,)),
    App("Airtime", AIRTIME, ("#C653F0", "#A21FD2"), WHITE, (), (66, 12, 3), (6, 27, 32)),
    App("Preview", "com.apple.Preview", ("#52B1EC", "#2184D2"), WHITE, (18, 15, 3), (42, 40, 8), (26,)),
    App("Weather", "com.apple.weather", ("#55B9F0", "#2196D6"), WHITE, (4, 7, 3), (9, 16, 7), (5, 30)),
    App("FaceTime", "com.apple.FaceTime", ("#66EA7E", "#27CC4C"), WHITE, (), (33, 4, 2), (28,)),
    App("Calculator", "com.apple.calculator", DARK, "#F2A23C", (3, 5, 2), (6, 9, 4)),
    App("Contacts", "com.apple.AddressBook", ("#C9A27A", "#A67C4F"), WHITE, (), (), (37, 52)),
    App("Stickies", "com.apple.Stickies", ("#F6E27A", "#E3C63C"), "#5C4A10", (), (), ()),
    # Used a while ago and thrown away since: the demo's always-there list still names it.
    App("Keyring", KEYRING, DARK, "#F08A84", (), (7, 6, 3), (), installed=False),
]

BY_NAME = {app.name: app for app in APPS}


def identifiers(names):
    return [BY_NAME[name].identifier for name in names.split()]


DOCK = identifiers("Mail Calendar Maps Halcyon Photos Music Notes Parley Codeway Books Messages Draftboard Reminders Chess")

# Earlier Docks: why each was saved, how many days ago and at which minute of that day, and what was in it.
EARLIER = [
    ("Before Kelvane", (20, 14 * 60 + 29), identifiers(
        "Halcyon Mail Maps Photos Calendar Reminders Notes Music Airtime Books Chess Preview Weather Terminal Messages Keyring")),
    ("Before restoring", (4, 11 * 60 + 5), identifiers("Mail Calendar Halcyon Photos Music Maps Messages Books")),
    ("Before Personal", (1, 18 * 60 + 40), identifiers(
        "Mail Calendar Parley Notes Codeway Halcyon Terminal Draftboard Ledgerline Huddle Reminders Messages")),
]

# Name, symbol, always there, never there, further places, days of usage, whether a spacer parts the two groups.
PROFILES = [
    ("Everyday", "sparkles", [], [], 12, 30, False),
    ("Work", "briefcase", identifiers("Mail Calendar Parley Notes Keyring"), identifiers("Music Photos"), 8, 7, True),
    ("Coding", "chevron.left.forwardslash.chevron.right", identifiers("Codeway Terminal"),
     identifiers("Music Photos Messages"), 7, 7, True),
    ("Meeting", "video", identifiers("Huddle Calendar Notes"), identifiers("Music Codeway Terminal"), 3, 7, True),
    ("Personal", "house", identifiers("Photos Music Messages"), identifiers("Parley Codeway Ledgerline"), 6, 30, True),
]
ACTIVE = "Work"
