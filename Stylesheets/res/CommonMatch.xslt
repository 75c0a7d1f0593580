<xslt:stylesheet id="CommonMatch.xslt" version="1.0" xmlns:xslt="http://www.w3.org/1999/XSL/Transform">

<!-- What every stylesheet over trees copies unless it knows better. Text is copied by XSLT itself. A stylesheet that
     includes this one calls its template for plain elements copy_element. -->

<xslt:template match="@*">
    <xslt:copy/>
</xslt:template>

<xslt:template match="*[(name(.)!=name(parent::*) and name(.)!='expression') or name(.)='expression']">
    <xslt:call-template name="copy_element"/>
</xslt:template>

<xslt:template match="comment()">
    <xslt:copy/>
</xslt:template>

</xslt:stylesheet>
