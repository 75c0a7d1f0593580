//NIGHTLY  JOB (4711,'ROOM 12'),'M. O''NEIL',CLASS=B,MSGCLASS=X,
//             NOTIFY=&SYSUID,COND=((8,LT),(4,EQ,LOAD)),
//* a comment may stand between the lines of a statement
//             RESTART=LOAD.SORT            and behind their operands
/*JOBPARM S=*,LINES=60
/*ROUTE   PRINT R12
//*MAIN   CLASS=NIGHT,
//*       LINES=(5,CANCEL)
//*
//LIBS     JCLLIB ORDER=(SHOP.PROD.PROCLIB,SHOP.BASE.PROCLIB)
//         EXPORT SYMLIST=(HLQ,DAY)
//         SET HLQ=SHOP.PROD,DAY=MON
//         SET NOTHING=
//JOBLIB   DD DSN=&HLQ..LOADLIB,DISP=SHR
//         DD DSN=SHOP.BASE.LOADLIB,DISP=SHR
//         INCLUDE MEMBER=OUTDEFS
//REPORTS  OUTPUT DEFAULT=YES,DEST=LOCAL,COPIES=2,JESDS=ALL
//*------------------------------------------------------------------
//* Take yesterday's orders, sort them, throw the work away
//*------------------------------------------------------------------
//LOAD     EXEC LOADPROC,REGION.SORT=0M,DAY=&DAY
//LOAD.IN  DD DSN=&HLQ..ORDERS(0),DISP=(OLD,KEEP,KEEP)
//SORT.SORTOUT DD DSN=&&SORTED,DISP=(,PASS),UNIT=SYSDA,
//             SPACE=(CYL,(5,5),RLSE,,ROUND),
//             DCB=(RECFM=FB,LRECL=80,BLKSIZE=0)
//SYSIN    DD *
  SORT FIELDS=(1,8,CH,A)

  OMIT COND=(9,1,CH,EQ,C'/')
/*                                       data end here
//CHECK    IF (LOAD.SORT.RC <= 4 & ¬ABEND) | NOT LOAD.RUN THEN
//PRINT    EXEC PGM=PRTORD,PARM='TITLE=''ORDERS OF NIGHT'',PAGE=A4,COPI
//             ES=2',TIME=(1,30)
//STEPLIB  DD DSN=*.LOAD.SORT.STEPLIB,DISP=SHR,VOL=REF=*.JOBLIB
//IN       DD DSN=&&SORTED,DISP=(OLD,DELETE),DCB=*.LOAD.SORT.SORTOUT
//LIST     DD SYSOUT=(A,,FORM),OUTPUT=*.REPORTS,DLM=NOT
//LETTER   DD DATA
//THIS     DD IS,TEXT
//*        AND SO IS THIS
/*
//SCRIPT   DD DATA,DLM='$$'
/* a program with comments of this kind */
//not a statement
$$
//ENDCHECK ELSE
//CLEAN    EXEC PGM=IEFBR14,COND=EVEN
//GONE     DD DISP=(MOD,DELETE),SPACE=(TRK,0),UNIT=(SYSDA,2,DEFER),
//             VOL=SER=(WORK01,WORK02),LABEL=(1,SL),DSN=&HLQ..TEMP&DAY
//NONE     DD DUMMY
//PATH     DD PATH='/u/shop/orders.txt',PATHOPTS=(ORDWR,OCREAT),
//             PATHMODE=(SIRUSR,SIWUSR)
//         ENDIF
//
