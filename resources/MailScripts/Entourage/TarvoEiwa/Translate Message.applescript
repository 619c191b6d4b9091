-- TarvoEiwa script for Microsoft Entourage, in readable form.
-- It hands the text of the selected message to Text Translation (creator code tTX8).

on run
    tell application "Microsoft Entourage"
        set theMessage to item 1 of (current messages)
        set theText to content of theMessage
    end tell
    tell application id "tTX8" to «event fileTranslate» theText
end run
