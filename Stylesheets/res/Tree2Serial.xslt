<xslt:stylesheet id="Tree2Serial.xslt" version="1.0" xmlns:xslt="http://www.w3.org/1999/XSL/Transform">

<!-- Flattens the tree of a parse:
       chains of like-named elements, one level for each item of a list, become one element with the items;
       statements become full_pl_sql_statement, which always has a label and a delimiter, empty if need be;
       macro placeholders become elements with attributes.
     The depth of the nested instructions in tree2serialChild counts three times for each item of a list against the
     limit of the transformation, and a variable there would count against that of the variables. -->

<!-- Helpers -->

<xslt:template name="copy_attributes">
    <xslt:apply-templates select="@*"/>
</xslt:template>

<xslt:template name="copy_element">
    <xslt:copy>
        <xslt:call-template name="copy_attributes"/>
        <xslt:apply-templates select="node()"/>
    </xslt:copy>
</xslt:template>

<!-- The items of a chain in document order. Items are copied whatever their name is: the main template sees only what
     they hold. -->
<xslt:template name="tree2serialChild">
    <xslt:param name="statements_name"/>
    <xslt:for-each select="*">
        <xslt:choose>
            <xslt:when test="name(.)=$statements_name">
                <xslt:call-template name="tree2serialChild">
                    <xslt:with-param name="statements_name" select="$statements_name"/>
                </xslt:call-template>
            </xslt:when>
            <xslt:otherwise>
                <xslt:call-template name="copy_element"/>
            </xslt:otherwise>
        </xslt:choose>
    </xslt:for-each>
</xslt:template>

<!-- Attributes, comments and text of the list itself don't come along. -->
<xslt:template name="tree2serialRoot">
    <xslt:param name="statements_name"/>
    <xslt:copy>
        <xslt:for-each select="*">
            <xslt:choose>
                <xslt:when test="name(.)=$statements_name">
                    <xslt:call-template name="tree2serialChild">
                        <xslt:with-param name="statements_name" select="$statements_name"/>
                    </xslt:call-template>
                </xslt:when>
                <xslt:otherwise>
                    <xslt:call-template name="copy_element"/>
                </xslt:otherwise>
            </xslt:choose>
        </xslt:for-each>
    </xslt:copy>
</xslt:template>

<!-- The main template: every element that isn't a link of a chain. The first case that holds wins. -->

<xslt:template priority="9" match="*[(name(.)!=name(parent::*) and name(.)!='expression' and name(.)!='body_pl_sql_statements' and name()!='CONCAT_item_list' and name()!='accumulate_expression') or name(.)='body_pl_sql_statements' or name(.)='expression' or name(.)='CONCAT_item_list' or name(.)='accumulate_expression']">
    <xslt:choose>

        <!-- 1 and 2: bodies. The outermost of nested ones makes the list. -->
        <xslt:when test="name(.)='body_pl_sql_statements' and name(parent::*)='body_pl_sql_statements'">
            <xslt:call-template name="body_statements"/>
        </xslt:when>
        <xslt:when test="name(.)='body_pl_sql_statements'">
            <pl_sql_statements>
                <xslt:call-template name="body_statements"/>
            </pl_sql_statements>
        </xslt:when>

        <!-- 3: the root of a list -->
        <xslt:when test="name(.)!=name(parent::*) and *[name(.)=name(current())] and name(.)!='expression' and name(.)!='CONCAT_item_list' and name(.)!='accumulate_expression' and name(.)!='main_source_section'">
            <xslt:call-template name="tree2serialRoot">
                <xslt:with-param name="statements_name" select="name(.)"/>
            </xslt:call-template>
        </xslt:when>

        <!-- 4 to 7: statements -->
        <xslt:when test="name(.)='delimited_pl_sql_statement' and labeled_pl_sql_statement">
            <full_pl_sql_statement delimited="1" labeled="1">
                <xslt:apply-templates select="labeled_pl_sql_statement/*"/>
                <xslt:apply-templates select="pl_sql_statement_delimiter"/>
                <xslt:call-template name="supplied_delimiter"/>
            </full_pl_sql_statement>
        </xslt:when>
        <xslt:when test="name(.)='delimited_pl_sql_statement'">
            <full_pl_sql_statement delimited="1" labeled="0">
                <pl_sql_statement_label/>
                <xslt:apply-templates select="node()"/>
                <xslt:call-template name="supplied_delimiter"/>
            </full_pl_sql_statement>
        </xslt:when>
        <xslt:when test="name(.)='labeled_pl_sql_statement'">
            <full_pl_sql_statement delimited="0" labeled="1">
                <xslt:apply-templates select="node()"/>
                <pl_sql_statement_delimiter/>
            </full_pl_sql_statement>
        </xslt:when>
        <xslt:when test="name(.)='pl_sql_statement' and name(parent::*)='pl_sql_statements'">
            <full_pl_sql_statement delimited="0" labeled="0">
                <pl_sql_statement_label/>
                <xslt:call-template name="copy_element"/>
                <pl_sql_statement_delimiter/>
            </full_pl_sql_statement>
        </xslt:when>

        <!-- 8: a list of statements that has no chain -->
        <xslt:when test="name(.)='pl_sql_statements'">
            <xslt:copy>
                <xslt:for-each select="*">
                    <xslt:choose>
                        <xslt:when test="name(.)='delimited_pl_sql_statements'">
                            <xslt:apply-templates select="node()"/>
                        </xslt:when>
                        <xslt:otherwise>
                            <xslt:apply-templates select="."/>
                        </xslt:otherwise>
                    </xslt:choose>
                </xslt:for-each>
            </xslt:copy>
        </xslt:when>

        <!-- 9: a macro placeholder, a token named after the rule in which it stands -->
        <xslt:when test="name(.)=concat('T__',name(parent::*))">
            <xslt:call-template name="macro_node"/>
        </xslt:when>

        <!-- 10: a link of a chain. The match keeps those away; a guard. -->
        <xslt:when test="name(.)=name(parent::*) and name(.)!='expression' and name(.)!='CONCAT_item_list' and name(.)!='accumulate_expression'">
            <xslt:apply-templates select="node()"/>
        </xslt:when>

        <!-- 11: anything else -->
        <xslt:otherwise>
            <xslt:call-template name="copy_element"/>
        </xslt:otherwise>

    </xslt:choose>
</xslt:template>

<!-- For the delimited_pl_sql_statement that is the current node: one behind the data division needs no delimiter in the
     source, but has one in the tree. -->
<xslt:template name="supplied_delimiter">
    <xslt:if test="not(pl_sql_statement_delimiter) and preceding-sibling::program_data_division_clause">
        <pl_sql_statement_delimiter/>
    </xslt:if>
</xslt:template>

<!-- The body loop. Every delimited statement of a body counts as labeled, the label being empty if there is none. -->
<xslt:template name="body_statements">
    <xslt:for-each select="*">
        <xslt:choose>
            <xslt:when test="name(.)='body_pl_sql_statements'">
                <xslt:apply-templates select="."/>
            </xslt:when>
            <xslt:when test="name(.)='delimited_pl_sql_statement' and labeled_pl_sql_statement">
                <full_pl_sql_statement delimited="1" labeled="1">
                    <xslt:apply-templates select="labeled_pl_sql_statement/*"/>
                    <xslt:call-template name="body_delimiter"/>
                </full_pl_sql_statement>
            </xslt:when>
            <xslt:when test="name(.)='delimited_pl_sql_statement'">
                <full_pl_sql_statement delimited="1" labeled="1">
                    <pl_sql_statement_label/>
                    <xslt:apply-templates select="node()"/>
                    <xslt:call-template name="body_delimiter"/>
                </full_pl_sql_statement>
            </xslt:when>
            <xslt:when test="name(.)='pl_sql_statement_delimiter'"/> <!-- taken by the statement in front of it -->
            <xslt:otherwise>
                <xslt:apply-templates select="."/>
            </xslt:otherwise>
        </xslt:choose>
    </xslt:for-each>
</xslt:template>

<!-- The delimiter of the statement that is the current node: the one behind it, for the last statement of a body also
     the one behind the body; tokens in between don't count. Where both are there, both come. -->
<xslt:template name="body_delimiter">
    <xslt:variable name="own" select="following-sibling::*[not(starts-with(name(.),'T__'))][1][name(.)='pl_sql_statement_delimiter']"/>
    <xslt:variable name="outer" select="parent::*[not(current()/following-sibling::delimited_pl_sql_statement[1])]/following-sibling::*[not(starts-with(name(.),'T__'))][1][name(.)='pl_sql_statement_delimiter']"/>
    <xslt:apply-templates select="$own"/>
    <xslt:apply-templates select="$outer"/>
    <xslt:if test="not($own) and not($outer)">
        <pl_sql_statement_delimiter/>
    </xslt:if>
</xslt:template>

<!-- What stands between the braces of a placeholder: rule=xpath, rule#number or rule#number[condition]. Whichever of "="
     and "#" comes first decides. -->
<xslt:template name="macro_node">
    <xslt:variable name="text" select="substring-before(substring-after(string(.),'{'),'}')"/>
    <xslt:copy>
        <xslt:call-template name="copy_attributes"/>
        <xslt:attribute name="macro">1</xslt:attribute>
        <xslt:choose>
            <xslt:when test="contains($text,'=') and not(contains(substring-before($text,'='),'#'))">
                <xslt:attribute name="xpath"><xslt:value-of select="substring-after($text,'=')"/></xslt:attribute>
                <xslt:attribute name="name"><xslt:value-of select="substring-before($text,'=')"/></xslt:attribute>
            </xslt:when>
            <xslt:when test="contains($text,'#') and contains($text,'[')">
                <xslt:attribute name="match"><xslt:value-of select="concat('[',substring-after($text,'['))"/></xslt:attribute>
                <xslt:attribute name="uid"><xslt:value-of select="substring-before(substring-after($text,'#'),'[')"/></xslt:attribute>
                <xslt:attribute name="name"><xslt:value-of select="substring-before($text,'#')"/></xslt:attribute>
            </xslt:when>
            <xslt:when test="contains($text,'#')">
                <xslt:attribute name="uid"><xslt:value-of select="substring-after($text,'#')"/></xslt:attribute>
                <xslt:attribute name="name"><xslt:value-of select="substring-before($text,'#')"/></xslt:attribute>
            </xslt:when>
        </xslt:choose>
        <xslt:text>{MACRO}</xslt:text>
    </xslt:copy>
</xslt:template>

<!-- White space that isn't there. Above the priority of the main template, which would copy it. -->
<xslt:template priority="10" match="T__SPACE[string-length(string(.))=0]"/>

<xslt:include href="CommonMatch.xslt"/>

</xslt:stylesheet>
