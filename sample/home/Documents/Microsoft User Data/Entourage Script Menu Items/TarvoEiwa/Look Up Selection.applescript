-- TarvoEiwa script for Microsoft Entourage, in readable form.
-- It looks the selected words up in User Dictionary (creator code tUD8).

on run
    tell application "Microsoft Entourage"
        set theText to selection as text
    end tell
    tell application id "tUD8" to «event doSearch» theText
end run
