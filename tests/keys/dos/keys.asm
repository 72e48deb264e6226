; KEYS.COM: what a game of the time sees of a keyboard. Every byte that comes from the keyboard's port is kept, as games
; take it, until F11 is let go of; then all of it goes into KEYS.OUT. READY.OUT tells that it listens.
        org     100h
        bits    16

        mov     ax, 3509h               ; where the keyboard's interrupt goes now
        int     21h
        mov     [before], bx
        mov     [before+2], es
        mov     dx, heard
        mov     ax, 2509h
        int     21h

        mov     dx, ready
        xor     cx, cx
        mov     ah, 3Ch
        int     21h
        mov     bx, ax
        mov     ah, 3Eh
        int     21h

listen: hlt
        cmp     byte [ended], 0
        je      listen

        push    ds
        lds     dx, [before]
        mov     ax, 2509h
        int     21h
        pop     ds

        mov     dx, result
        xor     cx, cx
        mov     ah, 3Ch
        int     21h
        mov     bx, ax
        mov     dx, bytes
        mov     cx, [count]
        mov     ah, 40h
        int     21h
        mov     ah, 3Eh
        int     21h
        mov     ax, 4C00h
        int     21h

heard:  push    ax
        push    bx
        in      al, 60h
        mov     bx, [cs:count]
        cmp     bx, 30000
        jae     full
        mov     [cs:bytes+bx], al
        inc     word [cs:count]
full:   cmp     al, 0D7h                ; F11 goes up
        jne     told
        mov     byte [cs:ended], 1
told:   in      al, 61h                 ; the byte was taken
        mov     ah, al
        or      al, 80h
        out     61h, al
        mov     al, ah
        out     61h, al
        mov     al, 20h
        out     20h, al
        pop     bx
        pop     ax
        iret

before: dd      0
count:  dw      0
ended:  db      0
ready:  db      'READY.OUT', 0
result: db      'KEYS.OUT', 0
bytes:
