-- TarvoEiwa script for Microsoft Outlook, in readable form.
-- It looks the selected words up in User Dictionary (creator code tUD8).

on run
    tell application "Microsoft Outlook"
        set theText to selection as text
    end tell
    tell application id "tUD8" to «event doSearch» theText
end run
