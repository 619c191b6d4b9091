-- TarvoEiwa script for Mail, in readable form.
-- It hands the text of the selected message to Text Translation (creator code tTX8).

on run
    tell application "Mail"
        set theMessage to message 1 of (selection as list)
        set theText to content of theMessage
    end tell
    tell application id "tTX8" to «event fileTranslate» theText
end run
