/* Parameters by their places, and lines that a minus joins. */
pgm (&first)
dcl &first *char 10
dcl &rate *dec (5 2) 1.25
dclf qgpl/control

loop: rcvf
  monmsg cpf0864 exec(goto done)
  if (&first = *all | &ctl_lib = &first) +
    call nightly/ctlrun (&ctl_lib 'N' &rate)
  else if (&ctl_skip) goto loop
  else do
    chgvar &ctl_text ('skipped' *cat -
                      ' by request')
    qsys/sndmsg &ctl_text qsysopr
  enddo
  cpyf ctl_log qgpl/log mbropt(*add) increl((*if ctl_day *gt 0) (*and ctl_lib *eq x)) /* only
       the days that have one */ fmtopt(*nochk)
  wrkobj qgpl/ctl* *all
  goto loop

done:
endpgm
