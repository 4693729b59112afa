"""Desktops with a light and with a dark ground, in the way of KDE."""

# A theme of the desktop that says all there is to say, so that no other
# setting of the machine shows. The caret does not blink.
THEME = """[General]
font=DejaVu Sans,9,-1,5,50,0,0,0,0,0
fixed=DejaVu Sans Mono,9,-1,5,50,0,0,0,0,0
[KDE]
CursorBlinkRate=0
ShowIconsOnPushButtons=false
widgetStyle=Fusion
"""
GROUNDS = {
    "light": {"Window": "239,240,241", "View": "255,255,255",
              "Button": "246,247,248", "Text": "35,38,41"},
    "dark": {"Window": "35,38,41", "View": "27,30,32",
             "Button": "49,54,59", "Text": "239,240,241"},
}


def write_themes(folder):
    """In it a folder with the theme for each ground."""
    for ground, colors in GROUNDS.items():
        lines = [THEME]
        for group in ("Window", "View", "Button", "Tooltip"):
            background = colors.get(group, colors["Button"])
            lines += [f"[Colors:{group}]", f"BackgroundNormal={background}",
                      f"ForegroundNormal={colors['Text']}",
                      f"BackgroundAlternate={colors['Window']}"]
        lines += ["[Colors:Selection]", "BackgroundNormal=61,174,233",
                  "ForegroundNormal=252,252,252", ""]
        (folder / ground).mkdir()
        (folder / ground / "kdeglobals").write_text("\n".join(lines))
